// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

class QPainter;

/// A bar for each category, with its value above it, on paper. Needs an application with widgets, but no window.
class BarChart
{
public:
    explicit BarChart(const QFont &font) : m_font(font) {}

    /// Titles may hold "<sub>".
    void setTitle(const QString &title) { m_title = title; }
    void setCategoryTitle(const QString &title) { m_categoryTitle = title; }
    void setValueTitle(const QString &title) { m_valueTitle = title; }
    /// A value for each category, or none at all. One that is no number, or absurdly large, has no place in the
    /// chart.
    void setBars(const QStringList &categories, const QVector<double> &values, const QColor &color);
    /// Smaller letters and turned categories, for many bars.
    void setDense(bool dense) { m_dense = dense; }

    /// Draws the chart, \a size wide and high, with its corner at (\a x, \a y) of the window. Returns its height.
    int draw(QPainter *painter, int x, int y, const QSizeF &size, qreal scale) const;

private:
    QFont m_font;
    QString m_title;
    QString m_categoryTitle;
    QString m_valueTitle;
    QStringList m_categories;
    QVector<double> m_values;
    QColor m_color;
    bool m_dense = false;
};
