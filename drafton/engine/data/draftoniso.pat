;; Hatch patterns of Drafton. Lengths are millimetres on paper at scale 1.
;; A line: angle, base x, base y, offset along, offset across, dashes (above 0 drawn, below 0 gap,
;; 0 a dot).

;; Plain lines

*LINE, parallel lines
0, 0, 0, 0, 3

*LINE_FINE, parallel lines close together
0, 0, 0, 0, 1

*LINE_PAIR, lines in pairs
0, 0, 0, 0, 4
0, 0, 1, 0, 4

*NET, square net
0, 0, 0, 0, 3
90, 0, 0, 0, 3

*NET3, net of triangles
0, 0, 0, 0, 3
60, 0, 0, 0, 3
120, 0, 0, 0, 3

*DASH, dashed lines, staggered
0, 0, 0, 3, 3, 4, -2

*DOTS, dots in a square grid
0, 0, 0, 0, 2, 0, -2

*DOTS_STAGGERED, dots in staggered rows
0, 0, 0, 1.5, 1.5, 0, -3

*CROSS, small crosses
0, 0, 0, 4, 4, 2, -6
90, 1, -1, 4, 4, 2, -6

*PLUS_GRID, crosses at the corners of squares
0, -1, 0, 0, 6, 2, -4
90, 0, -1, 0, 6, 2, -4

*LADDER, ladders side by side
90, 0, 0, 0, 6
90, 4, 0, 0, 6
0, 0, 0, 0, 2, 4, -2

;; Sections of materials, after common practice

*ANSI31, iron, brick, stone masonry; general use
45, 0, 0, 0, 3.175

*ANSI32, steel
45, 0, 0, 0, 9.525
45, 4.490128, 0, 0, 9.525

*ANSI33, bronze, brass, copper
45, 0, 0, 0, 6.35
45, 4.490128, 0, 0, 6.35, 3.175, -1.5875

*ANSI34, plastic, rubber
45, 0, 0, 0, 19.05
45, 4.490128, 0, 0, 19.05
45, 8.980256, 0, 0, 19.05
45, 13.470384, 0, 0, 19.05

*ANSI35, fire brick, refractory material
45, 0, 0, 0, 6.35
45, 4.490128, 0, 0, 6.35, 7.9375, -1.5875, 0, -1.5875

*ANSI36, marble, slate, glass
45, 0, 0, 5.55625, 3.175, 7.9375, -1.5875, 0, -1.5875

*ANSI37, lead, zinc, insulation
45, 0, 0, 0, 3.175
135, 0, 0, 0, 3.175

*ANSI38, aluminium
45, 0, 0, 0, 3.175
135, 0, 0, 6.35, 3.175, 7.9375, -4.7625

;; ISO line hatches: pen width 1 mm, dashes in pen widths

*ISO02W100, dashed lines
0, 0, 0, 0, 5, 12, -3

*ISO03W100, dashed, spaced lines
0, 0, 0, 0, 5, 12, -18

*ISO04W100, long dash, dot lines
0, 0, 0, 0, 5, 24, -3, 0.5, -3

*ISO05W100, long dash, two dots lines
0, 0, 0, 0, 5, 24, -3, 0.5, -3, 0.5, -3

*ISO06W100, long dash, three dots lines
0, 0, 0, 0, 5, 24, -3, 0.5, -3, 0.5, -3, 0.5, -3

*ISO07W100, dotted lines
0, 0, 0, 0, 5, 0.5, -3

*ISO08W100, long dash, short dash lines
0, 0, 0, 0, 5, 24, -3, 6, -3

*ISO09W100, long dash, two short dashes lines
0, 0, 0, 0, 5, 24, -3, 6, -3, 6, -3

*ISO10W100, dash, dot lines
0, 0, 0, 0, 5, 12, -3, 0.5, -3

*ISO11W100, two dashes, dot lines
0, 0, 0, 0, 5, 12, -3, 12, -3, 0.5, -3

*ISO12W100, dash, two dots lines
0, 0, 0, 0, 5, 12, -3, 0.5, -3, 0.5, -3

*ISO13W100, two dashes, two dots lines
0, 0, 0, 0, 5, 12, -3, 12, -3, 0.5, -3, 0.5, -3

*ISO14W100, dash, three dots lines
0, 0, 0, 0, 5, 12, -3, 0.5, -3, 0.5, -3, 0.5, -3

*ISO15W100, two dashes, three dots lines
0, 0, 0, 0, 5, 12, -3, 12, -3, 0.5, -3, 0.5, -3, 0.5, -3

;; Masonry and paving

*BRICK, running bond
0, 0, 0, 0, 4
90, 0, 0, 4, 6, 4, -4

*BRICK_STACK, stack bond
0, 0, 0, 0, 4
90, 0, 0, 0, 12

*BRICK_FLEMISH, stretchers and headers in turn
0, 0, 0, 0, 4
90, 0, 0, 4, 9, 4, -4
90, 6, 0, 4, 9, 4, -4

*BLOCK, large blocks, a third moved
0, 0, 0, 0, 8
90, 0, 0, 8, 8, 8, -16

*ASHLAR, courses of stone, low and high
0, 0, 0, 0, 14
0, 0, 5, 0, 14
90, 0, 0, 14, 12, 5, -23
90, 5, 5, 14, 10, 9, -19
90, 12, 14, 0, 24, 5, -9

*HERRINGBONE, herringbone at 45 degrees
45, 0, 0, 4, 4, 12, -4
135, 2.82842713, 2.82842713, 4, -4, 12, -4

*BASKET, basket weave of three
0, 0, 0, 0, 12
90, 0, 0, 0, 12
0, 0, 4, 12, 12, 12, -12
0, 0, 8, 12, 12, 12, -12
90, 16, 0, 12, 12, 12, -12
90, 20, 0, 12, 12, 12, -12

*TILE, square tiles with a joint
0, 0, 0, 0, 8
0, 0, 0.6, 0, 8
90, 0, 0, 0, 8
90, 0.6, 0, 0, 8

*TILE_DIAGONAL, square tiles on edge
45, 0, 0, 0, 8
135, 0, 0, 0, 8

*OCTAGON, octagons with small squares
0, 2.92893219, 0, 0, 10, 4.14213562, -5.85786438
90, 0, 2.92893219, 0, 10, 4.14213562, -5.85786438
45, -2.92893219, 0, 7.07106781, 7.07106781, 4.14213562, -10
45, 0, -2.92893219, 7.07106781, 7.07106781, 4.14213562, -10
135, 2.92893219, 0, 7.07106781, 7.07106781, 4.14213562, -10
135, 0, -2.92893219, 7.07106781, 7.07106781, 4.14213562, -10

*SETTS, small setts in rows
0, 0, 0, 0, 3
90, 0, 0, 3, 1.5, 3, -3

*HONEYCOMB, hexagons
0, 0, 0, 6, 3.46410162, 4, -8
120, 0, 0, 6, 3.46410162, 4, -8
60, 0, 0, 6, 3.46410162, -8, 4

*CUBES, cubes seen from a corner
0, -4, 0, 6, 3.46410162, 8, -4
120, 2, -3.46410162, 6, 3.46410162, 8, -4
60, 4, 6.92820323, 6, 3.46410162, 8, -4

*SLABS, large and small slabs
0, 0, 0, 8, 4, 12, -8
90, 8, 0, 8, 4, 12, -8

;; Roofs, floors and cladding

*SHINGLE, roof shingles
0, 0, 0, 0, 5
90, 0, 0, 5, 4, 5, -5

*ROOF_TILES, plain tiles with cut corners
0, 1.5, 0.5, 3, 4, 3, -3
90, 0, 2, 4, 3, 2.5, -5.5
45, 4.5, 0.5, 4.94974747, 0.707106781, 2.12132034, -31.8198052
135, 1.5, 0.5, 4.94974747, -0.707106781, 2.12132034, -31.8198052

*SEAM, standing seams
90, 0, 0, 0, 10
90, 0.8, 0, 0, 10

*PLANKS, floor boards with butt joints
0, 0, 0, 0, 4
90, 0, 0, 4, 17, 4, -12
90, 9, 4, 4, 23, 4, -12

*PARQUET, strips in squares, turned in turn
0, 0, 0, 0, 8
90, 0, 0, 0, 8
0, 0, 2, 8, 8, 8, -8
0, 0, 4, 8, 8, 8, -8
0, 0, 6, 8, 8, 8, -8
90, 10, 0, 8, 8, 8, -8
90, 12, 0, 8, 8, 8, -8
90, 14, 0, 8, 8, 8, -8

*CHEVRON, zigzag boards
45, 0, 0, 4, 4, 8, -8
135, 11.3137085, 0, 4, -4, 8, -8

*WOOD_GRAIN, wood along the grain
0, 0, 0, 0, 6
0, 0, 1.5, 7, 6, 18, -4
0, 5, 3, 11, 6, 9, -3, 5, -7
3, 0, 4.5, 13, 6, 14, -9

*WOOD_END, end grain
45, 0, 0, 0, 5
45, 1, 0, 9, 5, 7, -2
45, 2.2, 0, 4, 5, 3, -4, 6, -3
135, 0, 0, 5, 20, 2, -8

*GRATING, metal grating
0, 0, 0, 0, 2
90, 0, 0, 0, 8

*TREAD, tread plate
45, 0, 0, 4, 4, 3, -5
135, 4.94974747, 2.82842713, 4, 4, 3, -5

*MESH, expanded metal
30, 0, 0, 0, 3
150, 0, 0, 0, 3

;; Building materials

*CONCRETE, concrete: stones and sand
50, 0, 0, 10.5, -15.1, 1.9, -20.9
355, 0, 0, -5.1, 13.9, 1.5, -16.7
100.45, 1.5, -0.13, 14.6, -12.9, 1.6, -17.8
46.2, 0, 5.1, 15.7, -12.6, 2.9, -31.3
96.6, 2.27, 4.75, 18, -13, 2.4, -26.8
21, 0, 3, 0.8, 4.9, 0, -6.3
113, 4, 1, 1.1, 6.1, 0, -7.7
71, 2, 6, 2.3, 5.3, 0, -9.1

*CONCRETE_RC, concrete with steel, in section
45, 0, 0, 0, 9
45, 1.41421356, 0, 0, 9
45, 7, 0, 3, 9, 0, -4

*SCREED, fine dots
0, 0, 0, 0.7, 1.3, 0, -2.1
31, 1, 0.5, 1.9, 2.7, 0, -3.4

*PLASTER, fine dots, thinly spread
17, 0, 0, 1.7, 1.9, 0, -3.1
73, 1, 1, 2.3, 2.9, 0, -4.7

*SAND, sand
37.5, 0, 0, 1.1, 1.7, 0, -1.52, 0, -1.7, 0, -1.625
7.5, 0, 0, 2.1, 2.4, 0, -0.82, 0, -1.37, 0, -2.8
327.5, -1.2, 0, 1.7, 2.6, 0, -0.5, 0, -1.8, 0, -3.1

*GRAVEL, gravel
228, 7.2, 10, 9, 11, 1.7, -16.3
185, 6.1, 8.7, 13, 10, 2.3, -17.1
132, 3.9, 8.5, 8, 13, 2.1, -15.2
52, 1.2, 4.5, 11, 12, 1.9, -16.9
5, 3, 6.1, 12, 9, 2.6, -15.8
312, 5.4, 6.3, 9, 14, 2.2, -17.7
80, 1, 2, 13, 8, 1.6, -14.3

*EARTH, earth
0, 0, 0, 6, 6, 6, -6
0, 0, 1.5, 6, 6, 6, -6
0, 0, 3, 6, 6, 6, -6
90, 0.75, 3.75, 6, 6, 6, -6
90, 2.25, 3.75, 6, 6, 6, -6
90, 3.75, 3.75, 6, 6, 6, -6

*CLAY, clay
0, 0, 0, 0, 4.8
0, 0, 0.8, 0, 4.8
0, 0, 1.6, 0, 4.8
0, 0, 3.2, 2.4, 4.8, 4.8, -2.4

*ROCK, rock
45, 0, 0, 0, 12, 6, -3
45, 2, 0, 4, 12, 4, -5
45, 4, 0, 8, 12, 3, -6
135, 3, 3, 5, 15, 4, -11
135, 6, 6, 9, 15, 3, -12

*INSULATION, soft insulation, crossed
60, 0, 0, 0, 4
120, 0, 0, 0, 4
0, 0, 0, 0, 6.92820323

*INSULATION_RIGID, rigid insulation
45, 0, 0, 0, 6
135, 0, 0, 6, 6, 3, -9
135, 1.4, 1.4, 6, 6, 3, -9

*GLASS, glass, slanted strokes in threes
45, 0, 0, 10, 10, 8, -12
45, 1.5, 0, 10, 10, 6, -14
45, 3, 0, 10, 10, 4, -16

*CORK, cork
0, 0, 0, 0, 3
135, 2, -2, 0, 8, 4.24264069, -8.48528137
135, 3, -2, 0, 8, 4.24264069, -8.48528137

*FELT, felt, dampproofing
0, 0, 0, 0, 4
90, 0, 0, 4, 4, 1.5, -6.5
90, 0.8, 0, 4, 4, 1.5, -6.5

*STEEL, steel in thick section
45, 0, 0, 0, 4
45, 1, 0, 0, 4

*LINE_DOTS, lines with dots between
45, 0, 0, 0, 5
45, 3.53553391, 0, 1.5, 5, 0, -3

;; Ground, plants and water

*GRASS, grass tufts
90, 0, 0, 6, 6, 2, -10
45, 0, 0, 0, 8.48528137, 1.6, -6.88528137
135, 0, 0, 0, 8.48528137, 1.6, -6.88528137

*SWAMP, swamp
0, 0, 0, 8, 8, 4, -12
90, 2, 0, 8, 8, 2, -14
45, 2.4, 0, 0, 11.3137085, 1.6, -9.7137085
135, 1.6, 0, 0, 11.3137085, 1.6, -9.7137085

*LAWN, short strokes, thinly spread
90, 0, 0, 3.7, 2.9, 0.9, -5.9
80, 1, 1, 4.3, 5.1, 0.9, -8.3
100, 2, 3, 5.9, 6.1, 0.9, -9.7

*MULCH, short strokes in all directions
0, 0, 0, 5, 3, 1.5, -6
60, 2, 1, 4, 4.1, 1.5, -7
120, 1, 3, 6, 3.7, 1.5, -6.5

*WATER, water, still
0, 0, 0, 7, 4, 9, -5
0, 2, 1.2, 7, 8, 4, -10

*WAVES, waves
30, 0, 0, 1.25, 2.16506351, 5, -5
330, 4.33012702, 2.5, -1.25, 2.16506351, 5, -5

;; Figures

*STARS, six-rayed stars
0, -1, 0, 3, 5.19615242, 2, -4
60, -0.5, -0.866025404, 3, 5.19615242, 2, -4
120, 0.5, -0.866025404, 3, 5.19615242, 2, -4

*TRIANGLES, triangles in rows
0, 0, 0, 3, 5.19615242, 4, -2
60, 0, 0, 3, 5.19615242, 4, -2
120, 4, 0, 3, 5.19615242, 4, -2

*SQUARES, small squares
0, 0, 0, 0, 4, 2, -2
90, 0, 0, 0, 4, 2, -2
0, 0, 2, 0, 4, 2, -2
90, 2, 0, 0, 4, 2, -2

*CHECKER, chess board, lined
0, 0, 0, 4, 4, 4, -4
0, 0, 1, 4, 4, 4, -4
0, 0, 2, 4, 4, 4, -4
0, 0, 3, 4, 4, 4, -4

*ZIGZAG, zigzag lines
0, 0, 0, 3, 3, 3, -3
90, 3, 0, 3, 3, 3, -3

*STEPS, steps
0, 0, 0, 4, 4, 4, -4
90, 0, 0, 4, 4, 4, -4

*WEAVE, woven bands
0, 0, 0, 6, 6, 9, -3
0, 0, 2, 6, 6, 9, -3
90, -1, 3, 6, 6, 9, -3
90, -3, 3, 6, 6, 9, -3

*DIAMONDS, rhombs
60, 0, 0, 0, 4
120, 0, 0, 0, 4
