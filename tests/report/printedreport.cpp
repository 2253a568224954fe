// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/report/printedreport.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>

#include <cmath>

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

QStringList pageArguments(int page)
{
    const QString number = QString::number(page);
    return page == 0 ? QStringList() : QStringList{QStringLiteral("-f"), number, QStringLiteral("-l"), number};
}

/// Margins at the left and the top.
constexpr double margin = 30 / 25.4 * 96;

} // namespace

PrintedReport::PrintedReport(VfPrinter *printer, Experiment *first, QJsonObject choices)
{
    if (!choices.contains(QLatin1String("fileName")))
        choices.insert(QStringLiteral("fileName"), m_folder.filePath(QStringLiteral("report.pdf")));
    printer->setParameters(QString::fromUtf8(QJsonDocument(choices).toJson()));
    printer->setExperiment(first);
    m_path = printer->fileName();
    m_result = printer->printReport();
    if (m_result == 0)
        m_result = printer->endPainting();
}

int PrintedReport::pages() const
{
    return info(QStringLiteral("Pages")).toInt();
}

QString PrintedReport::info(const QString &key) const
{
    const QString text = QString::fromUtf8(outputOf(QStringLiteral("pdfinfo"), {m_path}));
    const QRegularExpression line(key + QLatin1String(":\\s+(.*)"));
    return line.match(text).captured(1);
}

QStringList PrintedReport::pictures() const
{
    const QStringList lines =
        QString::fromUtf8(outputOf(QStringLiteral("pdfimages"), {QStringLiteral("-list"), m_path}))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList pictures;
    for (const QString &line : lines.mid(2)) {
        const QStringList cells = line.simplified().split(QLatin1Char(' '));
        const QString encoding = cells[8] == QLatin1String("image") ? QStringLiteral("lossless") : cells[8];
        pictures.append(QStringLiteral("%1 x %2 %3").arg(cells[3], cells[4], encoding));
    }
    return pictures;
}

QString PrintedReport::text(int page, const QString &order) const
{
    return QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"), pageArguments(page) + QStringList{order, m_path, QStringLiteral("-")}));
}

QVector<PrintedReport::Word> PrintedReport::words(int page) const
{
    static const QRegularExpression word(QStringLiteral(
        "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">([^<]*)</word>"));
    const QString html = QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"),
                 pageArguments(page) + QStringList{QStringLiteral("-bbox"), m_path, QStringLiteral("-")}));
    QVector<Word> words;
    for (auto match = word.globalMatch(html); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const auto pixel = [&](int group) { return found.captured(group).toDouble() * 96 / 72 - margin; };
        words.append({found.captured(5).replace(QLatin1String("&amp;"), QLatin1String("&")),
                      QRectF(QPointF(pixel(1), pixel(2)), QPointF(pixel(3), pixel(4)))});
    }
    return words;
}

QRectF PrintedReport::box(const QString &text, int page) const
{
    const QVector<Word> all = words(page);
    for (const Word &word : all) {
        if (word.text == text)
            return word.box;
    }
    return {};
}

QStringList PrintedReport::faults(int page) const
{
    const QVector<Word> all = words(page);
    const qreal foot = box(QStringLiteral("of"), page).top() + 20;
    QStringList found = overlaps(all);
    for (const Word &word : all) {
        if (word.box.bottom() > foot || word.box.right() >= 610 || word.box.left() < -10)
            found.append(QStringLiteral("beside the page: ") + word.text);
    }
    const QString number = QStringLiteral("%1 of %2").arg(page).arg(pages());
    if (!text(page).simplified().contains(number))
        found.append(QStringLiteral("not page ") + number);
    return found;
}

QVector<QVector<QPointF>> PrintedReport::curves() const
{
    static const QRegularExpression path(QStringLiteral(" d=\"([^\"]*)\""));
    const QString svg =
        QString::fromUtf8(outputOf(QStringLiteral("pdftocairo"), {QStringLiteral("-svg"), QStringLiteral("-l"),
                                                                  QStringLiteral("1"), m_path, QStringLiteral("-")}));
    QVector<QVector<QPointF>> curves;
    for (auto match = path.globalMatch(svg); match.hasNext();) {
        const QString commands = match.next().captured(1);
        if (commands.count(QLatin1Char('C')) < 2 || commands.contains(QLatin1Char('Z')))
            continue; // a letter or a box
        QVector<QPointF> points;
        QVector<double> numbers;
        for (const QString &word : commands.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            bool isNumber = false;
            const double number = word.toDouble(&isNumber);
            if (isNumber)
                numbers.append(number);
        }
        for (int i = 0; i + 1 < numbers.size(); i += 2)
            points.append({numbers[i], numbers[i + 1]});
        curves.append(points);
    }
    return curves;
}

QImage PrintedReport::image(int page, int dpi) const
{
    const QStringList arguments{QStringLiteral("-png"), QStringLiteral("-gray"), QStringLiteral("-r"),
                                QString::number(dpi), m_path};
    return QImage::fromData(outputOf(QStringLiteral("pdftoppm"), pageArguments(page) + arguments))
        .convertToFormat(QImage::Format_Grayscale8);
}

QStringList PrintedReport::fonts() const
{
    const QStringList lines =
        QString::fromUtf8(outputOf(QStringLiteral("pdffonts"), {m_path})).split(QLatin1Char('\n'));
    QStringList fonts;
    for (const QString &line : lines.mid(2)) {
        const QStringList cells = line.simplified().split(QLatin1Char(' '));
        if (cells.size() > 6) // the type is of two words; encoding and "embedded" follow
            fonts.append(cells[0] + QLatin1Char(' ') + cells[4]);
    }
    return fonts;
}

QByteArray PrintedReport::csv() const
{
    QString name = m_path;
    QFile file(name.replace(QLatin1String(".pdf"), QLatin1String(".csv")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject switchedOn(const QStringList &keys)
{
    QJsonObject choices;
    for (const QString &key : keys)
        choices.insert(key, true);
    return choices;
}

QStringList overlaps(const QVector<PrintedReport::Word> &words)
{
    QStringList found;
    for (int i = 0; i < words.size(); ++i) {
        for (int j = i + 1; j < words.size(); ++j) {
            // lines touch by a fraction of their heights
            const QRectF shared = words[i].box.intersected(words[j].box);
            if (shared.width() > 1 && shared.height() > 3)
                found.append(words[i].text + QLatin1String(" on ") + words[j].text);
        }
    }
    return found;
}

double largestDifference(const QImage &a, const QImage &b)
{
    constexpr int tile = 16;
    if (a.size() != b.size() || a.isNull())
        return 255;
    double largest = 0;
    for (int top = 0; top < a.height(); top += tile) {
        for (int left = 0; left < a.width(); left += tile) {
            int sum = 0;
            for (int y = top; y < qMin(top + tile, a.height()); ++y) {
                for (int x = left; x < qMin(left + tile, a.width()); ++x)
                    sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
            }
            largest = qMax(largest, double(sum) / (tile * tile));
        }
    }
    return largest;
}

double differenceToKept(const QImage &page, const QString &name)
{
    const QImage kept(QStringLiteral(MORVANE_TEST_DATA "/") + name);
    const double difference = largestDifference(page, kept.convertToFormat(QImage::Format_Grayscale8));
    if (difference > 20) {
        const QString got = QDir::temp().filePath(name);
        page.save(got);
        qWarning("%s differs by %g: look at %s", qPrintable(name), difference, qPrintable(got));
    }
    return difference;
}
