// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vfsubsuperscript.h"

#include "report/fonts.h"
#include "report/texts.h"

#include <QPainter>

namespace {

constexpr int longestPiece = 100; ///< characters

} // namespace

VfSubSuperScript::VfSubSuperScript() : m_smallFont(ReportFont::mono(5)), m_font(ReportFont::mono(8)) {}

VfSubSuperScript::VfSubSuperScript(const QString &text, const QString &subscript, const QString &superscript,
                                   VfSubSuperScript *next)
    : VfSubSuperScript()
{
    m_text = shortened(text, longestPiece);
    m_subscript = shortened(subscript, longestPiece);
    m_superscript = shortened(superscript, longestPiece);
    m_next = next;
}

VfSubSuperScript *VfSubSuperScript::ofLine(const Line &line)
{
    const auto make = [](const Piece &piece) {
        return new VfSubSuperScript(piece.text, piece.subscript, piece.superscript);
    };
    VfSubSuperScript *const first = make(line.first());
    VfSubSuperScript *last = first;
    for (const Piece &piece : line.mid(1)) {
        last->m_next = make(piece);
        last = last->m_next;
        last->setParent(first);
    }
    return first;
}

void VfSubSuperScript::setText(const QString &text)
{
    m_text = shortened(text, longestPiece);
    m_placed.reset();
}

void VfSubSuperScript::setSubscript(const QString &subscript)
{
    m_subscript = shortened(subscript, longestPiece);
    m_placed.reset();
}

void VfSubSuperScript::setSuperscript(const QString &superscript)
{
    m_superscript = shortened(superscript, longestPiece);
    m_placed.reset();
}

void VfSubSuperScript::setSmallFont(const QFont &font)
{
    m_smallFont = font;
    m_placed.reset();
}

void VfSubSuperScript::setFont(const QFont &font)
{
    if (font.pixelSize() < 6)
        return;
    QFont small(font.family());
    small.setPixelSize(font.pixelSize() - 3);
    if (font == m_font && small == m_smallFont)
        return;
    m_font = font;
    m_smallFont = small;
    m_placed.reset();
}

qreal VfSubSuperScript::lineWidth(QPainter *painter) const
{
    if (m_text.isEmpty())
        return 0;
    const Placed &p = placed(painter);
    return p.text.width() + p.indexWidth() + (m_next ? m_next->lineWidth(painter) : 0);
}

int VfSubSuperScript::height(QPainter *painter) const
{
    if (m_text.isEmpty())
        return 0;
    const Placed &p = placed(painter);
    int height = p.text.height();
    const int half = height / 2;
    if (!m_subscript.isEmpty() && half < p.subscript.height())
        height += p.subscript.height() - half;
    if (!m_superscript.isEmpty())
        height += p.superscript.height() / 2;
    return qMax(height, m_next ? m_next->height(painter) : 0);
}

int VfSubSuperScript::draw(int left, int top, int right, int bottom, QPainter *painter)
{
    Q_UNUSED(top)
    Q_UNUSED(bottom)
    if (m_text.isEmpty())
        return 0;
    const qreal fullWidth = lineWidth(painter);
    const QTransform before = painter->transform();
    const QPen pen = painter->pen();
    if (m_color.isValid())
        painter->setPen(m_color);
    painter->translate((right - left + 1 - fullWidth) / 2, 0);
    drawPiece(painter);
    painter->setPen(pen);
    if (m_next) {
        const Placed &p = placed(painter);
        painter->translate(p.text.width() + p.indexWidth(), 0);
        m_next->setFont(m_font);
        m_next->draw(0, 0, m_next->width(painter) - 1, m_next->height(painter) - 1, painter);
    }
    painter->setTransform(before);
    return int(fullWidth);
}

int VfSubSuperScript::draw(QPainter *painter)
{
    const int fullHeight = height(painter);
    return draw(0, 0, width(painter) - 1, fullHeight - 1, painter) > 0 ? fullHeight : 0;
}

int VfSubSuperScript::draw(int x, int y, QPainter *painter)
{
    painter->resetTransform();
    painter->translate(x, y);
    return draw(painter);
}

const VfSubSuperScript::Placed &VfSubSuperScript::placed(QPainter *painter) const
{
    if (!m_placed) {
        m_placed.emplace(Placed{PlacedText(m_text, m_font, painter), PlacedText(m_subscript, m_smallFont, painter),
                                PlacedText(m_superscript, m_smallFont, painter),
                                PlacedText(QStringLiteral("TESTE"), m_smallFont, painter).height()});
    }
    return *m_placed;
}

void VfSubSuperScript::drawPiece(QPainter *painter) const
{
    const Placed &p = placed(painter);
    // The line stands one line of indexes below the top, so that what is raised has room.
    painter->translate(0, p.smallLine);
    p.text.draw(painter);
    painter->translate(p.text.width(), p.text.height() / 2);
    p.subscript.draw(painter);
    painter->translate(0, -p.text.height() / 2 - p.smallLine / 2);
    p.superscript.draw(painter);
    painter->translate(-p.text.width(), p.smallLine / 2 - p.smallLine);
}
