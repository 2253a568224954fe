// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QVector>

/// What a spline through samples needs to stay a function of time.
namespace SmoothCurve {

/// \a points parted where time runs back, each part in order of time. If that happens too often to be a clock that was
/// set, all are one part, sorted.
QVector<QVector<QPointF>> pieces(const QVector<QPointF> &points);

/// \a points, which are in order of time, with points on the straight line between them wherever steps are uneven: no
/// step is longer than three times its neighbour. A cubic spline over the points' numbers then never runs back, as its
/// slope at each point stays between 0 and three times the shorter step beside it.
QVector<QPointF> evened(const QVector<QPointF> &points);

} // namespace SmoothCurve
