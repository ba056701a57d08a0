// Pictures that are compared with golden ones.
#pragma once

#include <QImage>

#include <gtest/gtest.h>

namespace render_test {

/// Succeeds if a picture looks like tests/data/golden/render/<name>.png: few pixels may differ by
/// more than a little, since fonts and arithmetic are not the same everywhere. Otherwise the
/// picture and one of the differences are written beside the test program, and the message tells
/// where. With DRAFTON_WRITE_GOLDEN set the golden picture is written instead; look at it before it
/// is committed.
testing::AssertionResult looksLike(const QImage& picture, const char* name);

} // namespace render_test
