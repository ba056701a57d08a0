// Pictures that are compared with golden ones.
#pragma once

#include <QImage>

#include <gtest/gtest.h>

namespace render_test {

/// What keeps a picture from looking like another one of its size; empty if nothing does.
std::string faultOf(const QImage& actual, const QImage& expected, QSize cell);

/// Succeeds if a picture looks like tests/data/golden/render/<name>.png: few pixels may differ by
/// more than a little, since fonts and arithmetic are not the same everywhere. Of what is drawn in
/// each cell of the size `cell`, too, most must be as it was, so that none of many things on a
/// sheet can go amiss; without a size the picture has sixteen cells. Otherwise the picture and one
/// of the differences are written beside the test program, and the message tells where. With
/// DRAFTON_WRITE_GOLDEN set the golden picture is written instead; look at it before it is
/// committed.
testing::AssertionResult looksLike(const QImage& picture, const char* name, QSize cell = {});

} // namespace render_test
