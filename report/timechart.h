// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QVector>

#include <limits>
#include <utility>

class ChartScene;
class QPainter;
namespace QtCharts {
class QChart;
}

/// Values over time, on paper. Needs an application with widgets, but no window.
class TimeChart
{
public:
    enum class Curves { Smooth, Lines, Markers };
    /// What the axis of values holds beyond the lowest and the highest: one, or a tenth of each.
    enum class Beyond { One, Tenth };
    struct Look {
        Curves curves = Curves::Smooth;
        Beyond beyond = Beyond::One;
        bool legend = true;
        /// The lowest value is searched from here on, the highest from the opposite.
        double searched = 200;
    };

    /// What stands at each point where curves are markers.
    struct Marker {
        QString picture; ///< file of 10 x 10 pixels
        QColor colour;   ///< without the picture
    };

    explicit TimeChart(const QFont &font) : m_font(font) {}

    void setLook(const Look &look) { m_look = look; }
    /// Titles may hold "<sub>"; what comes from outside is to be made ChartScene::plain().
    void setTitle(const QString &title) { m_title = title; }
    void setTimeTitle(const QString &title) { m_timeTitle = title; }
    void setValueTitle(const QString &title) { m_valueTitle = title; }

    /// Curves that are added from now on are drawn with at most twice \a columns points. The standard is two
    /// columns to a pixel of the plot: the picture stays the same.
    void setColumns(int columns) { m_columns = columns; }
    /// Adds a curve of \a points (ms since the epoch, value) in the order in which they were taken. \a name may hold
    /// "<sub>". Where the clock was set back, the curve begins anew. A single point is a dot.
    void addCurve(const QString &name, const QVector<QPointF> &points, const Marker &marker = {});

    /// Draws the chart, \a size wide and high, with its corner at (\a x, \a y) of the window. Returns its height.
    int draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const;

    /// Points that a curve is drawn with: those of \a points, or of many the lowest and the highest in each of
    /// \a columns equal parts, in their order. The picture on paper stays the same: where nothing interrupts the time
    /// they are moved, by less than a part, to even steps.
    static QVector<QPointF> reduced(const QVector<QPointF> &points, int columns);

private:
    struct Curve {
        QString name;
        QVector<QVector<QPointF>> pieces;
        Marker marker;
    };
    void addCurves(QtCharts::QChart *chart) const;
    void addMarkers(QtCharts::QChart *chart) const;
    void addAxes(const ChartScene &scene, const QSizeF &size) const;
    /// What the axis of values holds.
    std::pair<double, double> valueRange() const;

    Look m_look;
    QFont m_font;
    QString m_title;
    QString m_timeTitle;
    QString m_valueTitle;
    int m_columns = 1200;
    QVector<Curve> m_curves;
    qreal m_lowest = std::numeric_limits<qreal>::infinity(); ///< of all points, also those that are not drawn
    qreal m_highest = -std::numeric_limits<qreal>::infinity();
    qreal m_begin = std::numeric_limits<qreal>::infinity();
    qreal m_end = -std::numeric_limits<qreal>::infinity();
};
