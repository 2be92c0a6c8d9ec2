#pragma once

#include <QColor>

namespace lorvane {

/// How well a colour is told from the ground that it stands on: from 1 for the same colour to 21
/// for black on white.
[[nodiscard]] double ContrastOf(const QColor& colour, const QColor& ground);

/// The colour, made darker on a light ground and lighter on a dark one until it can be read there:
/// with a contrast of 4.5 or more.
[[nodiscard]] QColor ReadableOn(const QColor& ground, QColor colour);

}  // namespace lorvane
