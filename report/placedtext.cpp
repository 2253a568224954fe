// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/placedtext.h"

#include <QFontInfo>
#include <QPainter>

#include <algorithm>

GlyphLine::GlyphLine(const QFont &font, QPainter *painter)
{
    const QFontMetricsF metrics(font, painter->device());
    m_raw = QRawFont::fromFont(font);
    m_ascent = metrics.ascent();
    if (QFontInfo(font).fixedPitch() && m_raw.isValid())
        m_advance = metrics.horizontalAdvance(QLatin1Char('0'));
}

bool GlyphLine::append(const QString &text, qreal x, qreal y)
{
    if (m_advance <= 0)
        return false;
    const QVector<quint32> glyphs = m_raw.glyphIndexesForString(text);
    if (glyphs.size() != text.size() || glyphs.contains(0) || text.contains(QLatin1Char('\n')))
        return false;
    m_glyphs += glyphs;
    for (int i = 0; i < glyphs.size(); ++i)
        m_positions.append({x + i * m_advance, y + m_ascent});
    return true;
}

void GlyphLine::flush(QPainter *painter)
{
    if (m_glyphs.isEmpty())
        return;
    QGlyphRun run;
    run.setRawFont(m_raw);
    run.setGlyphIndexes(m_glyphs);
    run.setPositions(m_positions);
    painter->drawGlyphRun({0, 0}, run);
    m_glyphs.clear();
    m_positions.clear();
}

PlacedText::PlacedText(const QString &text, const QFont &font, QPainter *painter)
    : m_text(text), m_font(font), m_line(font, painter)
{
    if (text.isEmpty())
        return;
    const QFont before = painter->font();
    painter->setFont(font);
    m_size = painter->boundingRect(QRectF(painter->window()), Qt::AlignLeft | Qt::TextWordWrap, text).size();
    painter->setFont(before);
}

void PlacedText::draw(QPainter *painter) const
{
    if (m_text.isEmpty())
        return;
    if (m_line.append(m_text, 0, 0)) {
        m_line.flush(painter);
        return;
    }
    const QFont before = painter->font();
    painter->setFont(m_font);
    painter->drawText(painter->window(), Qt::AlignLeft | Qt::TextWordWrap, m_text);
    painter->setFont(before);
}
