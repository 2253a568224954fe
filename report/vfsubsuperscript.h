// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/placedtext.h"

#include <QColor>
#include <QObject>
#include <QVector>

#include <optional>

class QPainter;

/// A piece of text with an index below and one above it, and the next piece of the same line: "T" with a small "Dry"
/// below and "[°C]" behind it. An empty text hides the piece and those behind it.
///
/// A piece measures itself once and draws often: the heads of a log table stand on every page.
class VfSubSuperScript : public QObject
{
    Q_OBJECT

public:
    VfSubSuperScript();
    /// \a next is drawn to the right of this piece; it may be shared by several and is not owned.
    VfSubSuperScript(const QString &text, const QString &subscript, const QString &superscript,
                     VfSubSuperScript *next = nullptr);

    struct Piece {
        QString text;
        QString subscript = {};
        QString superscript = {};
    };
    using Line = QVector<Piece>;
    /// A line of the pieces in \a line, one at least. The first piece owns the others; the caller owns it.
    static VfSubSuperScript *ofLine(const Line &line);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QString subscript() const { return m_subscript; }
    void setSubscript(const QString &subscript);
    QString superscript() const { return m_superscript; }
    void setSuperscript(const QString &superscript);
    VfSubSuperScript *next() const { return m_next; }
    void setNext(VfSubSuperScript *next) { m_next = next; }
    /// Invalid: the painter's own.
    QColor color() const { return m_color; }
    void setColor(const QColor &color) { m_color = color; }
    /// Of the indexes.
    QFont smallFont() const { return m_smallFont; }
    void setSmallFont(const QFont &font);
    /// Of the base text.
    QFont font() const { return m_font; }
    /// The indexes follow, 3 pixels smaller. A font below 6 pixels is refused.
    void setFont(const QFont &font);
    int marginX() const { return m_marginX; }
    void setMarginX(int margin) { m_marginX = margin; }
    int marginY() const { return m_marginY; }
    void setMarginY(int margin) { m_marginY = margin; }
    int alignment() const { return m_alignment; }
    void setAlignment(int alignment) { m_alignment = alignment; }

    /// Width of the piece and of all that follows it, in whole pixels.
    int width(QPainter *painter) const { return int(lineWidth(painter)); }
    /// Height of the tallest of the piece and those that follow it.
    int height(QPainter *painter) const;

    /// Draws the line in the middle of the rectangle's width. Returns the width drawn.
    int draw(int left, int top, int right, int bottom, QPainter *painter);
    /// Draws at the painter's origin. Returns the height, 0 when nothing was drawn.
    int draw(QPainter *painter);
    /// Draws at (\a x, \a y) of the window. Returns the height, 0 when nothing was drawn.
    int draw(int x, int y, QPainter *painter);

private:
    /// The texts, set for one device.
    struct Placed {
        PlacedText text;
        PlacedText subscript;
        PlacedText superscript;
        int smallLine = 0; ///< height of a line of indexes
        qreal indexWidth() const { return qMax(subscript.width(), superscript.width()); }
    };
    const Placed &placed(QPainter *painter) const;
    qreal lineWidth(QPainter *painter) const;
    void drawPiece(QPainter *painter) const;

    QString m_text;
    QString m_subscript;
    QString m_superscript;
    VfSubSuperScript *m_next = nullptr;
    QColor m_color;
    QFont m_smallFont;
    QFont m_font;
    int m_marginX = 8;
    int m_marginY = 8;
    int m_alignment = 0;
    mutable std::optional<Placed> m_placed;
};
