// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/timechart.h"

#include <QChart>
#include <QDateTime>
#include <QDateTimeAxis>
#include <QGraphicsScene>
#include <QPainter>
#include <QSplineSeries>
#include <QValueAxis>

#include <algorithm>

using namespace QtCharts;

namespace {

void addAxis(QChart *chart, QAbstractAxis *axis, Qt::Alignment side, const QString &title, const QFont &font)
{
    axis->setTitleText(title);
    axis->setTitleFont(font);
    axis->setLabelsFont(font);
    chart->addAxis(axis, side);
    const auto curves = chart->series();
    for (QAbstractSeries *curve : curves)
        curve->attachAxis(axis);
}

} // namespace

void TimeChart::addCurve(const QString &name, const QVector<QPointF> &points)
{
    for (const QPointF &point : points) {
        m_lowest = std::min(m_lowest, point.y());
        m_highest = std::max(m_highest, point.y());
    }
    if (!points.isEmpty()) {
        m_begin = points.first().x();
        m_end = points.last().x();
    }
    m_curves.append({name, reduced(points, m_columns)});
}

QVector<QPointF> TimeChart::reduced(const QVector<QPointF> &points, int columns)
{
    const qint64 count = points.size();
    if (count <= 2 * columns)
        return points;
    QVector<QPointF> kept;
    kept.reserve(2 * columns);
    for (int column = 0; column < columns; ++column) {
        const auto from = points.cbegin() + column * count / columns;
        const auto to = points.cbegin() + (column + 1) * count / columns;
        const auto below = [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); };
        const auto [lowest, highest] = std::minmax_element(from, to, below);
        kept.append(*std::min(lowest, highest));
        if (lowest != highest)
            kept.append(*std::max(lowest, highest));
    }
    return kept;
}

int TimeChart::draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const
{
    QGraphicsScene scene(QRectF(QPointF(0, 0), size));
    auto *chart = new QChart;
    chart->setPreferredSize(size.width() * scale, size.height()); // before the scene takes the chart
    chart->setMargins(QMargins(0, 0, 0, 0));
    chart->setLocalizeNumbers(true);
    chart->setTitle(m_title);
    chart->setTitleFont(m_font);
    chart->legend()->setFont(m_font);
    for (const Curve &curve : m_curves) {
        auto *series = new QSplineSeries;
        series->setName(curve.name);
        series->replace(curve.points);
        chart->addSeries(series);
    }
    auto *values = new QValueAxis;
    addAxis(chart, values, Qt::AlignLeft, m_valueTitle, m_font);
    values->setRange(m_lowest - 1, m_highest + 1);
    auto *times = new QDateTimeAxis;
    times->setFormat(QStringLiteral("hh:mm:ss"));
    addAxis(chart, times, Qt::AlignBottom, m_timeTitle, m_font);
    times->setRange(QDateTime::fromMSecsSinceEpoch(qint64(m_begin)), QDateTime::fromMSecsSinceEpoch(qint64(m_end)));
    scene.addItem(chart);

    painter->resetTransform();
    painter->translate(x, y);
    scene.render(painter, QRectF(QPointF(0, 0), size), scene.sceneRect(), Qt::KeepAspectRatio);
    return qRound(scene.height());
}
