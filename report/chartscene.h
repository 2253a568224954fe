// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QGraphicsScene>
#include <QSizeF>
#include <QString>

class QPainter;
namespace QtCharts {
class QAbstractAxis;
class QChart;
}

/// A chart on its way to paper.
class ChartScene
{
public:
    /// \a size wide and high; \a scale times as wide inside. Titles may hold "<sub>".
    ChartScene(const QSizeF &size, qreal scale, const QString &title, const QFont &font);
    /// \a text as it is, for a title; cut when it is absurdly long.
    static QString plain(const QString &text);

    /// Owned by the scene.
    QtCharts::QChart *chart() const { return m_chart; }
    /// Takes \a axis over, for all series that the chart has.
    void addAxis(QtCharts::QAbstractAxis *axis, Qt::Alignment side, const QString &title, const QFont &font) const;
    /// A title in the middle of the scene, \a y below its top, for a chart that leaves none in its place.
    void addTitle(const QString &title, const QFont &font, qreal y);
    /// A label that is turned by 80 degrees, below \a place.
    void addTurned(const QString &text, const QFont &font, const QPointF &place);
    /// Draws it with its corner at (\a x, \a y) of the window. Returns its height.
    int render(QPainter *painter, int x, int y);

private:
    QGraphicsScene m_scene;
    QtCharts::QChart *m_chart;
};
