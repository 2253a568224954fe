// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/vfprinter.h"

#include "model/buildinfo.h"
#include "model/experiment.h"
#include "model/filename.h"
#include "model/log.h"
#include "report/dates.h"
#include "report/fonts.h"
#include "report/rulepen.h"
#include "report/texts.h"
#include "report/vffullpagetable.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextOption>
#include <QUrl>
#include <QtMath>

#include <cmath>

namespace {

constexpr int textFlags = Qt::AlignLeft | Qt::TextWordWrap;
constexpr int noteFlags = Qt::AlignJustify | Qt::TextWordWrap;
constexpr int notesHeight = 100;
constexpr int pixelsPerInch = 96;
constexpr int longestText = 400; ///< characters
const QSize logoSize(100, 25);
constexpr int mostLogoPixels = 4000000;

/// Wrapped between words, and within a word that is wider than its column.
QTextOption wrapped(Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

/// Whether the table of contents of the PDF file stands where its last lines say: a write that failed anywhere before
/// moves or cuts it.
bool isCompletePdf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(qMax(file.size() - 64, qint64(0))))
        return false;
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
    const int last = lines.size() - 1;
    return last >= 2 && lines[last] == "%%EOF" && lines[last - 2] == "startxref" &&
           file.seek(lines[last - 1].toLongLong()) && file.read(4) == "xref";
}

/// Also where a link points; what is no plain file stays.
void removeIncomplete(const QString &path)
{
    const QFileInfo file(path);
    if (file.isFile())
        QFile::remove(file.canonicalFilePath());
}

} // namespace

struct VfPrinter::Nowhere {
    explicit Nowhere(const VfPrinter &printer)
    {
        bytes.open(QIODevice::WriteOnly);
        writer.setResolution(printer.resolution());
        writer.setPageLayout(printer.pageLayout());
        painter->begin(&writer);
    }
    ~Nowhere() { painter->end(); }

    /// Takes what is written and keeps nothing.
    struct Sink : QIODevice {
        bool isSequential() const override { return true; }
        qint64 readData(char *, qint64) override { return -1; }
        qint64 writeData(const char *, qint64 size) override { return size; }
    };
    Sink bytes;
    QPdfWriter writer{&bytes};
    std::unique_ptr<QPainter> painter = std::make_unique<QPainter>();
};

VfPrinter::VfPrinter() : QPrinter(QPrinter::ScreenResolution), m_painter(new QPainter), m_smallFont(ReportFont::sans(6))
{
    setOutputFormat(QPrinter::PdfFormat);
    setResolution(pixelsPerInch); // a display's own would make another page
    setPageSize(QPageSize(QPageSize::A4));
    setPageMargins(QMarginsF(30, 30, 20, 20), QPageLayout::Millimeter);
    const QString folder = QString::fromLocal8Bit(qgetenv("TEMP"));
    setOutputFile((folder.isEmpty() ? QStringLiteral("/tmp/") : folder) + QLatin1String("/temp.pdf"));
    setCreator(QLatin1String("Suite Morvane ") + BuildInfo::revision());
}

VfPrinter::~VfPrinter() = default;

void VfPrinter::setBodyFonts()
{
    m_logRowFont = ReportFont::mono(8);
    m_logHeaderFont = ReportFont::mono(8);
    m_sectionTitleFont = ReportFont::sans(10, QFont::Bold);
    m_textFont = ReportFont::sans(10);
    m_chartFont = ReportFont::sans(9);
}

// ---------------------------------------------------------------- file

int VfPrinter::beginPainting()
{
    const QDateTime start = m_experiment ? m_experiment->dateTime().toLocalTime() : QDateTime();
    const QStringList title{m_reportTitle, m_sn, ::dateText(start.date())};
    setDocName(shortened(title.join(QLatin1String(", ")), longestText));
    if (!m_painter->begin(this))
        return -1;
    m_painter->setRenderHint(QPainter::LosslessImageRendering);
    return 0;
}

int VfPrinter::endPainting()
{
    if (m_painter->end() && printerState() != QPrinter::Error && isCompletePdf(m_fileName))
        return m_filesComplete ? 0 : -1;
    removeIncomplete(m_fileName);
    return -1;
}

void VfPrinter::setOutputFile(const QString &name)
{
    m_fileName = name.endsWith(QLatin1String(".pdf")) ? name : name + QLatin1String(".pdf");
    setOutputFileName(m_fileName);
}

void VfPrinter::openResult()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_fileName).absoluteFilePath()));
}

QString VfPrinter::csvFileName() const
{
    QString name = m_fileName;
    name.replace(QLatin1String(".pdf"), QLatin1String(".csv"));
    return name.endsWith(QLatin1String(".csv")) ? name : name + QLatin1String(".csv");
}

void VfPrinter::writeCsvFile(const QByteArray &content)
{
    QFile file(csvFileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    const bool complete = file.write(content) == content.size() && file.flush();
    file.close();
    if (complete)
        return;
    m_filesComplete = false;
    removeIncomplete(file.fileName());
}

void VfPrinter::readParameters(const QString &json, const ReportParameters &parameters, const ReportParameters &further)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject())
        return;
    QString file;
    ::readParameters(
        {
            {"fileName", &file},
            {"ownCompany", &m_ownCompany},
            {"collectorName", &m_collectorName},
            {"repIdReg", &m_repIdReg},
            {"repName", &m_repName},
            {"cmpnyName", &m_cmpnyName},
            {"siteName", &m_siteName},
            {"emplName", &m_emplName},
            {"ckbTable", &m_tableEnable},
            {"ownCompanyInfoEnable", &m_ownCompanyInfoEnable},
            {"collectorInfoEnable", &m_collectorInfoEnable},
            {"repIdInfoEnable", &m_repIdInfoEnable},
            {"repInfoEnable", &m_repInfoEnable},
            {"cmpnyInfoEnable", &m_cmpnyInfoEnable},
            {"siteInfoEnable", &m_siteInfoEnable},
            {"emplInfoEnable", &m_emplInfoEnable},
            {"logoEnable", &m_logoEnable},
            {"logoFile", &m_logoFile},
            {"obsEnable", &m_obsEnable},
            {"obsText", &m_obsText},
        },
        document.object());
    ::readParameters(parameters, document.object());
    ::readParameters(further, document.object());
    setOutputFile(pathFromUrl(file));
}

QString VfPrinter::formatNumber(double value, int integerDigits, int decimals)
{
    QString text = QLocale().toString(value, 'f', decimals);
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto first = std::find_if(text.begin(), text.end(), isDigit);
    const int digits = int(std::find_if_not(first, text.end(), isDigit) - first);
    if (first != text.end() && digits < integerDigits)
        text.insert(int(first - text.begin()), QString(integerDigits - digits, QLocale().zeroDigit()));
    return text;
}

// ---------------------------------------------------------------- page

void VfPrinter::moveTo(int x, int y)
{
    m_painter->resetTransform();
    m_painter->translate(x, y);
}

void VfPrinter::drawRule(int y)
{
    const QPen before = m_painter->pen();
    moveTo(0, 0);
    m_painter->setPen(rulePen());
    m_painter->drawLine(0, y, windowWidth(), y);
    m_painter->setPen(before);
}

void VfPrinter::measureFooter()
{
    m_painter->setFont(m_logRowFont);
    const QRect text = m_painter->boundingRect(m_painter->window(), noteFlags, m_footerText);
    m_footerHeight = text.height() + m_footerSpacing + 1;
}

QSize VfPrinter::drawLogo()
{
    if (!m_logoEnable || m_logoFile.isEmpty())
        return {0, 0};
    if (m_logo.isNull() && m_logo.load(pathFromUrl(m_logoFile))) { // once, for it stands on every page
        const double pixels = double(m_logo.width()) * m_logo.height();
        if (pixels > mostLogoPixels)
            m_logo = m_logo.scaled(m_logo.size() * std::sqrt(mostLogoPixels / pixels), Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    }
    if (m_logo.isNull())
        return {0, 0};
    const QSize place = m_logo.size().scaled(logoSize, Qt::KeepAspectRatio).expandedTo({1, 1});
    moveTo(0, 0);
    m_painter->setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter->drawImage(QRect({0, 0}, place), m_logo);
    return place + QSize(5, 5);
}

int VfPrinter::drawPageHeader()
{
    const QSize logo = drawLogo();
    QFont font = ReportFont::sans(9);
    font.setItalic(true);
    m_painter->setFont(font);
    moveTo(logo.width(), 0);
    const QString text = m_reportTitle + QLatin1String(" @ ") + m_productName + QLatin1String(" SN: ") + m_sn;
    const int height = drawWrapped(text, QRect(0, 0, windowWidth() - logo.width(), windowHeight()), Qt::AlignHCenter);
    ++m_pageNumber;
    m_contentTop = qMax(height, logo.height());
    drawRule(m_contentTop);
    return m_contentTop + m_headerSpacing;
}

int VfPrinter::drawFooter()
{
    const int height = footHeight() - m_footerSpacing;
    if (m_footerPage == m_pageNumber) // a second drawing at the same place would only darken it
        return footHeight();
    m_footerPage = m_pageNumber;
    m_painter->setFont(ReportFont::sans(8));
    drawRule(windowHeight() - footHeight());
    moveTo(0, windowHeight() - height);
    const QRect line(0, 0, windowWidth(), height);
    m_painter->drawText(line, noteFlags, m_footerText);
    const QString number = QStringLiteral("%1 ").arg(m_pageNumber) + tr("of") + QStringLiteral(" %1").arg(m_totalPages);
    m_painter->drawText(line, Qt::AlignRight, number);
    return footHeight();
}

int VfPrinter::footHeight() const
{
    const QFontMetrics metrics(ReportFont::sans(8), m_painter->device());
    return metrics.boundingRect(m_painter->window(), noteFlags, m_footerText).height() + m_footerSpacing;
}

int VfPrinter::newContentPage()
{
    m_footerHeight = drawFooter();
    beginPage();
    m_contentTop = m_y = drawPageHeader();
    return m_y;
}

void VfPrinter::beginPage()
{
    if (m_rehearsing)
        m_nowhere->writer.newPage();
    else
        newPage();
}

VfPrinter::Extent VfPrinter::rehearse(const Content &drawing)
{
    if (!m_nowhere)
        m_nowhere = std::make_unique<Nowhere>(*this);
    const auto kept = std::make_tuple(m_y, m_sectionTop, m_contentTop, m_footerHeight, m_pageNumber, m_footerPage,
                                      m_tableEnable);
    const bool nested = std::exchange(m_rehearsing, true);
    if (!nested)
        m_painter.swap(m_nowhere->painter);
    drawing();
    if (!nested)
        m_painter.swap(m_nowhere->painter);
    m_rehearsing = nested;
    const Extent extent{m_y - std::get<0>(kept), m_pageNumber - std::get<4>(kept)};
    std::tie(m_y, m_sectionTop, m_contentTop, m_footerHeight, m_pageNumber, m_footerPage, m_tableEnable) = kept;
    return extent;
}

// ---------------------------------------------------------------- body

void VfPrinter::section(const QString &title, const Content &content)
{
    m_y += m_vSpace;
    drawSectionTitle(title);
    box(content);
}

void VfPrinter::box(const Content &content)
{
    const int top = m_y;
    m_y += m_vSpace;
    m_painter->setFont(m_textFont);
    content();
    m_y += m_vSpace;
    drawBox(top, m_y);
    m_sectionTop = m_y;
    moveTo(0, m_y);
    m_y += m_vSpace;
}

void VfPrinter::drawSectionTitle(const QString &text)
{
    moveTo(0, m_y);
    m_y += m_vSpace;
    m_painter->setFont(m_sectionTitleFont);
    QRect drawn;
    m_painter->drawText(QRect(0, 0, windowWidth(), windowHeight()), Qt::AlignHCenter, text, &drawn);
    m_y += drawn.height() + m_vSpace;
}

void VfPrinter::drawBox(int top, int bottom)
{
    const QPen before = m_painter->pen();
    moveTo(0, 0);
    m_painter->setPen(rulePen());
    m_painter->drawRect(0, top, windowWidth(), bottom - 1 - top);
    m_painter->setPen(before);
}

void VfPrinter::drawLine(const QString &text)
{
    m_y = drawColumn({text}, m_hSpace, windowWidth() - 2 * m_hSpace);
}

void VfPrinter::drawTwoColumns(const QStringList &left, const QStringList &right)
{
    const int width = windowWidth() / 2 - 2 * m_hSpace;
    const int leftEnd = drawColumn(left, m_hSpace, width); // first, as it is read
    const int rightEnd = drawColumn(right, windowWidth() / 2 + m_hSpace, width);
    m_y = qMax(leftEnd, rightEnd);
}

int VfPrinter::drawColumn(const QStringList &texts, int x, int width)
{
    int y = m_y;
    for (const QString &text : texts)
        y += drawText(text, x, y, QRect(0, 0, width, windowHeight()));
    return y;
}

void VfPrinter::drawColumns(const QStringList &texts, int count)
{
    const int step = (windowWidth() + 1 - 2 * m_hSpace) / count + m_hSpace;
    int highest = 0;
    for (int column = 0; column < texts.size(); ++column) {
        const int x = m_hSpace + column * step;
        const QRect bounds(0, 0, qMin(step, windowWidth() - x) - m_hSpace, windowHeight());
        highest = qMax(highest, drawText(texts[column], x, m_y, bounds));
    }
    m_y += highest;
}

void VfPrinter::drawGrid(const QStringList &texts, int count)
{
    QStringList lines = texts;
    for (QString &text : lines)
        text = text.simplified(); // of texts of many lines the box would run below the foot
    for (int first = 0; first < lines.size(); first += count)
        drawColumns(lines.mid(first, count), count);
}

void VfPrinter::drawIndexed(const QVector<IndexedLines> &columns)
{
    const int step = (windowWidth() - 2 * m_hSpace) / qMax(columns.size(), 1);
    int bottom = m_y;
    for (int column = 0; column < columns.size(); ++column) {
        int y = m_y;
        for (const VfSubSuperScript::Line &pieces : columns[column]) {
            const std::unique_ptr<VfSubSuperScript> line(VfSubSuperScript::ofLine(pieces));
            for (VfSubSuperScript *piece = line.get(); piece; piece = piece->next())
                piece->setFont(m_textFont);
            line->draw(m_hSpace + column * step, y, m_painter.get());
            y += line->height(m_painter.get()) + 2 * m_vSpace;
        }
        bottom = qMax(bottom, y);
    }
    m_y = bottom + m_vSpace; // indexes hang below their lines
}

int VfPrinter::drawText(const QString &text, int x, int y, const QRect &bounds)
{
    moveTo(x, y);
    return drawWrapped(text, bounds, Qt::AlignLeft) + 1 + m_painter->fontMetrics().leading();
}

int VfPrinter::drawWrapped(const QString &text, const QRect &bounds, Qt::Alignment alignment)
{
    const QString cut = shortened(text, longestText);
    const QRectF drawn = m_painter->boundingRect(bounds, cut, wrapped(alignment));
    m_painter->drawText(bounds, cut, wrapped(alignment));
    return qCeil(drawn.height());
}

int VfPrinter::drawDate(const QDateTime &dateTime, int x, int y)
{
    return drawText(dateText(dateTime), x, y, QRect(0, 0, windowWidth() / 2 - 2 * m_hSpace, windowHeight()));
}

QString VfPrinter::dateText(const QDateTime &dateTime) const
{
    return tr("Date") + QLatin1String(": ") + ::dateText(dateTime.toLocalTime().date());
}

int VfPrinter::drawCaptionedValue(const QString &caption, const QString &value, int x, int y, const QRect &bounds)
{
    const QFont before = m_painter->font();
    QRect captionRect;
    QRect valueRect;
    moveTo(x, y);
    m_painter->setFont(m_textFont);
    const int leading = m_painter->fontMetrics().leading();
    m_painter->drawText(bounds, textFlags, caption, &captionRect);
    moveTo(x + 5, y + captionRect.height() + 2);
    m_painter->setFont(m_smallFont);
    m_painter->drawText(bounds, textFlags, value, &valueRect);
    m_painter->setFont(before);
    return captionRect.height() + valueRect.height() + 2 + leading;
}

// ---------------------------------------------------------------- sections

QString VfPrinter::localTime(const QDateTime &moment)
{
    return moment.toLocalTime().toString(QStringLiteral("hh:mm:ss"));
}

QString VfPrinter::timeOfDay(const QString &seconds)
{
    return QTime(0, 0).addSecs(seconds.toInt()).toString(QStringLiteral("hh:mm:ss"));
}

QStringList VfPrinter::captioned(bool on, const QString &caption, const QString &value)
{
    return on ? QStringList{captionedText(caption, value)} : QStringList();
}

void VfPrinter::drawIdentification()
{
    drawIdentification(captioned(m_cmpnyInfoEnable, tr("Company evaluated"), m_cmpnyName) +
                           captioned(m_siteInfoEnable, tr("Site/Area"), m_siteName),
                       captioned(m_ownCompanyInfoEnable, tr("Valuation company"), m_ownCompany) +
                           captioned(m_collectorInfoEnable, tr("Collected by"), m_collectorName));
}

void VfPrinter::drawIdentification(const QStringList &left, const QStringList &right)
{
    m_contentTop = m_y = drawPageHeader();
    m_y += m_vSpace;
    box([&] { drawTwoColumns(left, right + QStringList{dateText(m_experiment->dateTime())}); });
}

QString VfPrinter::calibrationText(const Calibration &calibration) const
{
    return tr("Cal. cert.") + QLatin1String(": ") + dashed(calibration.certification) + QLatin1Char(' ') +
           ::dateText(calibration.date.date());
}

void VfPrinter::drawNotes()
{
    if (!m_obsEnable)
        return;
    m_y += m_vSpace;
    drawSectionTitle(tr("Notes"));
    const int top = m_y;
    m_y += m_vSpace;
    m_painter->setFont(m_textFont);
    moveTo(m_hSpace, m_y);
    const QRect width(0, 0, windowWidth() - 2 * m_hSpace, windowHeight());
    if (m_painter->boundingRect(width, m_obsText, wrapped(Qt::AlignJustify)).height() <= notesHeight)
        m_painter->drawText(width, m_obsText, wrapped(Qt::AlignJustify));
    m_y += notesHeight;
    drawBox(top, m_y);
    m_sectionTop = m_y;
}

void VfPrinter::drawSignature()
{
    m_y += 5 * m_vSpace;
    if (!m_repInfoEnable && !m_repIdInfoEnable)
        return;
    QString text(41, QLatin1Char('_'));
    if (m_repInfoEnable)
        text += QLatin1String("\r\n") + shortened(m_repName, longestText / 2);
    if (m_repIdInfoEnable)
        text += QLatin1String("\r\n") + tr("ID") + QLatin1String(": ") + m_repIdReg;
    m_painter->setFont(m_textFont);
    moveTo(windowWidth() / 2, m_y);
    m_y += drawWrapped(text, QRect(0, 0, windowWidth() / 2, windowHeight()), Qt::AlignHCenter) + 2 * m_vSpace + 1;
    m_sectionTop = m_y;
}

// ---------------------------------------------------------------- log table

void VfPrinter::calculateTotalPages(bool withLogTable)
{
    m_totalPages = 0;
    for (Experiment *member = m_experiment; member; member = member->next()) {
        ++m_totalPages;
        if (withLogTable)
            m_totalPages += countTablePages(std::unique_ptr<VfTable>(createLogTable(member)));
    }
}

int VfPrinter::countTablePages(std::unique_ptr<VfTable> table)
{
    if (table->totalWidth() > windowWidth())
        m_tableEnable = false;
    table->setBottomMargin(footHeight()); // as when it is drawn
    return table->pageCount(m_contentTop);
}

QList<VfSubSuperScript *> VfPrinter::logTableHeader(Experiment *)
{
    return {};
}

QList<VfTableRow *> VfPrinter::logTableRows(Experiment *)
{
    return {};
}

VfTable *VfPrinter::createLogTable(Experiment *experiment)
{
    return makeLogTable(logTableRows(experiment), logTableHeader(experiment));
}

QList<VfTableRow *> VfPrinter::logRows(const Experiment *experiment,
                                       const std::function<QStringList(const Log &log)> &cellsOf)
{
    QList<VfTableRow *> rows;
    const QList<Log *> logs = experiment->logs();
    rows.reserve(logs.size());
    for (const Log *log : logs) {
        const QDateTime date = log->registerDate();
        QStringList cells{QStringLiteral("%1").arg(rows.size() + 1, 3, 10, QLatin1Char('0')), localTime(date)};
        cells += cellsOf(*log);
        rows.append(new VfTableRow(cells, date.date()));
    }
    return rows;
}

VfTable *VfPrinter::makeLogTable(const QList<VfTableRow *> &rows, const QList<VfSubSuperScript *> &header)
{
    auto *table = new VfFullPageTable(m_painter.get());
    table->setRowFont(m_logRowFont);
    table->setRows(rows); // before the heads, which need the columns
    table->setHeaderFont(m_logHeaderFont);
    table->setHeader(header);
    return table;
}

void VfPrinter::drawLogTable(Experiment *experiment)
{
    drawLogTable(std::unique_ptr<VfTable>(createLogTable(experiment)));
}

void VfPrinter::drawLogTable(std::unique_ptr<VfTable> table)
{
    m_table = std::move(table);
    m_table->setBottomMargin(m_footerHeight);
    connect(m_table.get(), &VfTable::newPage, this, &VfPrinter::newTablePage);
    connect(m_table.get(), &VfTable::finishPage, this, &VfPrinter::finishTablePage);
    m_y = m_contentTop;
    m_table->draw(0, m_contentTop);
    m_footerHeight = drawFooter();
    m_table.reset();
}

void VfPrinter::newTablePage()
{
    if (!m_table)
        return;
    beginPage();
    m_contentTop = m_y = drawPageHeader();
    m_table->setNewPageDone(true);
}

void VfPrinter::finishTablePage()
{
    drawFooter();
    m_table->setFinishPageDone(true);
}
