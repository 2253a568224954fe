// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/chartscene.h"

#include "report/texts.h"

#include <QAbstractAxis>
#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsTextItem>
#include <QLegend>
#include <QPainter>

using namespace QtCharts;

namespace {

constexpr int Inset = 9; ///< pixels around a chart and its legend

} // namespace

ChartScene::ChartScene(const QSizeF &size, qreal scale, const QString &title, const QFont &font)
    : m_scene(QRectF(QPointF(0, 0), size)), m_chart(new QChart)
{
    m_chart->setPreferredSize(size.width() * scale, size.height()); // before the scene takes the chart
    m_chart->setMargins(QMargins(0, 0, 0, 0));
    for (QGraphicsLayout *layout : {m_chart->layout(), m_chart->legend()->layout()})
        layout->setContentsMargins(Inset, Inset, Inset, Inset); // whatever the display's style has
    m_chart->setLocalizeNumbers(true);
    m_chart->setTitle(title);
    m_chart->setTitleFont(font);
    m_scene.addItem(m_chart);
}

void ChartScene::addAxis(QAbstractAxis *axis, Qt::Alignment side, const QString &title, const QFont &font) const
{
    axis->setTitleText(title);
    axis->setTitleFont(font);
    axis->setLabelsFont(font);
    m_chart->addAxis(axis, side);
    const auto all = m_chart->series();
    for (QAbstractSeries *series : all)
        series->attachAxis(axis);
}

void ChartScene::addTitle(const QString &title, const QFont &font, qreal y)
{
    QGraphicsTextItem *heading = m_scene.addText(QString(), font);
    heading->setHtml(title);
    heading->setPos((m_scene.width() - heading->boundingRect().width()) / 2, y);
}

void ChartScene::addTurned(const QString &text, const QFont &font, const QPointF &place)
{
    QGraphicsSimpleTextItem *label = m_scene.addSimpleText(text.trimmed(), font);
    label->setRotation(80);
    label->setPos(place + QPointF(label->boundingRect().height() / 2, 4));
}

QString ChartScene::plain(const QString &text)
{
    constexpr int longest = 80; // characters
    return shortened(text, longest).toHtmlEscaped();
}

int ChartScene::render(QPainter *painter, int x, int y)
{
    painter->resetTransform();
    painter->translate(x, y);
    const QRectF rect = m_scene.sceneRect();
    m_scene.render(painter, QRectF(QPointF(0, 0), rect.size()), rect, Qt::KeepAspectRatio);
    return qRound(rect.height());
}
