"""Outlines of what rectangles make together: walls with their openings."""


def _cells(solids, holes):
    xs = sorted({v for r in solids + holes for v in (r[0], r[2])})
    ys = sorted({v for r in solids + holes for v in (r[1], r[3])})

    def inside(x, y, boxes):
        return any(b[0] < x < b[2] and b[1] < y < b[3] for b in boxes)
    filled = set()
    for i in range(len(xs) - 1):
        for j in range(len(ys) - 1):
            x, y = (xs[i] + xs[i + 1]) / 2, (ys[j] + ys[j + 1]) / 2
            if inside(x, y, solids) and not inside(x, y, holes):
                filled.add((i, j))
    return xs, ys, filled


def _loops(filled):
    """The edges of the cells, with the filled side at their left, joined to closed loops."""
    follows = {}
    for i, j in sorted(filled):
        for a, b, beside in (((i, j), (i + 1, j), (i, j - 1)),
                             ((i + 1, j), (i + 1, j + 1), (i + 1, j)),
                             ((i + 1, j + 1), (i, j + 1), (i, j + 1)),
                             ((i, j + 1), (i, j), (i - 1, j))):
            if beside not in filled:
                follows.setdefault(a, []).append(b)
    while follows:
        start = min(follows)
        loop, at, way = [], start, None
        while True:
            loop.append(at)
            ends = follows[at]
            # Where corners touch, the sharpest turn to the left stays with the same piece.
            best = max(ends, key=lambda end: _turn(way, _way(at, end)) if way else 0)
            ends.remove(best)
            if not ends:
                del follows[at]
            way, at = _way(at, best), best
            if at == start:
                break
        yield loop


def _turn(way, next_way):
    """Above 0 to the left."""
    return way[0] * next_way[1] - way[1] * next_way[0]


def _pieces(filled):
    """Cells that hang together."""
    left = set(filled)
    while left:
        waiting, piece = [min(left)], set()
        left.discard(waiting[0])
        while waiting:
            i, j = waiting.pop()
            piece.add((i, j))
            for near in ((i + 1, j), (i - 1, j), (i, j + 1), (i, j - 1)):
                if near in left:
                    left.discard(near)
                    waiting.append(near)
        yield piece


def _way(a, b):
    return (b[0] - a[0], b[1] - a[1])


def outlines(solids, holes=()):
    """Closed loops of corners, and one place within each piece. Boxes are (x1, y1, x2, y2)."""
    xs, ys, filled = _cells(list(solids), list(holes))
    loops = []
    for loop in _loops(filled):
        follow = loop[1:] + loop[:1]
        corners = [at for before, at, after in zip(loop[-1:] + loop[:-1], loop, follow)
                   if _way(before, at) != _way(at, after)]
        loops.append([(xs[i], ys[j]) for i, j in corners])
    places = []
    for piece in _pieces(filled):
        i, j = max(piece, key=lambda c: ((xs[c[0] + 1] - xs[c[0]]) * (ys[c[1] + 1] - ys[c[1]]), c))
        places.append(((xs[i] + xs[i + 1]) / 2, (ys[j] + ys[j + 1]) / 2))
    return loops, sorted(places)
