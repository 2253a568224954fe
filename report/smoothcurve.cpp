// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/smoothcurve.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int mostPieces = 20;
/// A gap's first and last steps are between a size's part and multiple by this: two gaps' steps at a point differ by
/// at most its square.
const double tolerance = std::sqrt(3.0);

bool isEarlier(const QPointF &a, const QPointF &b)
{
    return a.x() < b.x();
}

/// Samples of the same moment stand a millisecond apart.
void partEqualTimes(QVector<QPointF> *points)
{
    for (int i = 1; i < points->size(); ++i)
        (*points)[i].rx() = std::max((*points)[i].x(), (*points)[i - 1].x() + 1);
}

/// How long steps may be at each of \a points: not longer than those beside it, and not longer than steps get that
/// double all the way from another point.
QVector<double> stepSizes(const QVector<QPointF> &points)
{
    const int last = points.size() - 1;
    const auto gap = [&](int i) { return points[i + 1].x() - points[i].x(); };
    QVector<double> sizes(points.size());
    for (int i = 0; i <= last; ++i)
        sizes[i] = std::min(gap(std::max(i - 1, 0)), gap(std::min(i, last - 1)));
    for (int i = 0; i < last; ++i)
        sizes[i + 1] = std::min(sizes[i + 1], (sizes[i] + gap(i)) / 2);
    for (int i = last - 1; i >= 0; --i)
        sizes[i] = std::min(sizes[i], (sizes[i + 1] + gap(i)) / 2);
    return sizes;
}

/// Appends points between \a from and \a to, where steps may be \a left and \a right long. Steps double from both
/// sides, the shorter ones first, until they span the gap; then all are fitted to it.
void fill(const QPointF &from, const QPointF &to, double left, double right, QVector<QPointF> *points)
{
    const double gap = to.x() - from.x();
    QVector<double> forth;
    QVector<double> back;
    double sum = 0;
    while (sum * tolerance < gap) {
        const bool leftIsShorter = left <= right;
        double &step = leftIsShorter ? left : right;
        (leftIsShorter ? forth : back).append(step);
        sum += step;
        step *= 2;
    }
    std::reverse(back.begin(), back.end());
    forth += back;
    forth.removeLast(); // which ends at \a to
    double way = 0;
    for (const double step : qAsConst(forth)) {
        way += step / sum;
        points->append(from + way * (to - from));
    }
}

} // namespace

QVector<QVector<QPointF>> SmoothCurve::pieces(const QVector<QPointF> &points)
{
    QVector<QVector<QPointF>> pieces;
    for (auto from = points.cbegin(); from != points.cend() && pieces.size() <= mostPieces;) {
        const auto to = std::is_sorted_until(from, points.cend(), isEarlier);
        pieces.append(points.mid(int(from - points.cbegin()), int(to - from)));
        from = to;
    }
    if (pieces.size() > mostPieces) {
        QVector<QPointF> all = points;
        std::stable_sort(all.begin(), all.end(), isEarlier);
        pieces = {all};
    }
    for (QVector<QPointF> &piece : pieces)
        partEqualTimes(&piece);
    return pieces;
}

QVector<QPointF> SmoothCurve::evened(const QVector<QPointF> &points)
{
    if (points.size() < 3)
        return points;
    const QVector<double> sizes = stepSizes(points);
    QVector<QPointF> evened{points.first()};
    evened.reserve(2 * points.size());
    for (int i = 1; i < points.size(); ++i) {
        fill(points[i - 1], points[i], sizes[i - 1], sizes[i], &evened);
        evened.append(points[i]);
    }
    return evened;
}
