// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QSizeF>
#include <QString>
#include <QtMath>

class QPainter;

/// Glyphs of a fixed-pitch font, placed without laying out text, which takes half the time of a log table. They stand
/// where plain drawing puts them.
class GlyphLine
{
public:
    GlyphLine() = default;
    /// Measures \a font on \a painter's device. In a font of no fixed pitch nothing can be placed.
    GlyphLine(const QFont &font, QPainter *painter);

    /// Places \a text with its left upper corner at (\a x, \a y): false, and nothing placed, when it must be laid out
    /// (several lines, or a character that the font lacks).
    bool append(const QString &text, qreal x, qreal y);
    /// Draws what was placed, and forgets it.
    void flush(QPainter *painter);
    /// Width of one character; 0 in a font of no fixed pitch.
    qreal advance() const { return m_advance; }

private:
    QRawFont m_raw;
    qreal m_advance = 0;
    qreal m_ascent = 0;
    QVector<quint32> m_glyphs;
    QVector<QPointF> m_positions;
};

/// A text that is measured once and drawn often on the same device.
class PlacedText
{
public:
    PlacedText() = default;
    PlacedText(const QString &text, const QFont &font, QPainter *painter);

    qreal width() const { return m_size.width(); }
    int height() const { return qCeil(m_size.height()); }
    /// Draws the text with its left upper corner at the painter's origin.
    void draw(QPainter *painter) const;

private:
    QString m_text;
    QFont m_font;
    QSizeF m_size{0, 0};
    mutable GlyphLine m_line;
};
