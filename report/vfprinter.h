// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/calibration.h"
#include "report/parameters.h"
#include "report/vfsubsuperscript.h"

#include <QFont>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPrinter>

#include <functional>
#include <memory>

class Experiment;
class Log;
class VfTable;
class VfTableRow;

/// The base of every family's report: paint device and drawing logic in one object, which lives for one report.
/// It fixes the A4 page, keeps the vertical cursor, draws what all reports share and runs the log table over its pages.
/// A family's printReport() reads like a table of contents of the sections it adds.
///
/// Places are pixels of the painter's window, 96 to the inch whatever the display; its origin is the corner of the
/// margins. Who asks for a report calls, in this order: setProductName(), setSn(), setCalibration(), setParameters(),
/// setExperiment(), printReport(), and when that returned 0 endPainting() and openResult().
class VfPrinter : public QObject, public QPrinter // in this order: the meta-object wants its QObject first
{
    Q_OBJECT

public:
    VfPrinter();
    ~VfPrinter() override;

    /// Draws the whole report: 0, or -1 when the file can't be written.
    [[nodiscard]] virtual int printReport() = 0;
    /// Reads the report window's choices, a JSON object. A key that is missing reads as empty or false; a text that is
    /// no object changes nothing.
    virtual void setParameters(const QString &json) = 0;
    /// Sets the total that the foot shows: here one page for each experiment of the chain and those of its log table.
    virtual void calculateTotalPages(bool withLogTable);
    /// The log table of \a experiment, measured; the caller owns it.
    virtual VfTable *createLogTable(Experiment *experiment);
    /// The heads of the columns; the table takes them over.
    virtual QList<VfSubSuperScript *> logTableHeader(Experiment *experiment);
    /// Nobody overrides or calls it.
    virtual QStringList unusedList() { return {}; }
    /// One row for each sample; the table takes them over.
    virtual QList<VfTableRow *> logTableRows(Experiment *experiment);
    /// Nobody overrides or calls it.
    virtual void unused() {}

    QString productName() const { return m_productName; }
    void setProductName(const QString &name) { m_productName = name; }
    QString sn() const { return m_sn; }
    void setSn(const QString &sn) { m_sn = sn; }
    void setCalibration(const Calibration &calibration) { m_calibration = calibration; }
    Experiment *experiment() const { return m_experiment; }
    /// \a first is the first experiment of the report; it must outlive the printer's drawing.
    void setExperiment(Experiment *first) { m_experiment = first; }

    /// 0, or -1 when the file can't be written.
    [[nodiscard]] int beginPainting();
    /// Completes the file: 0, or -1 when it, or a file beside it, could not be written to its end. What is incomplete
    /// is removed.
    [[nodiscard]] int endPainting();
    /// Writes to the path \a name, with ".pdf" behind it if it is not there.
    void setOutputFile(const QString &name);
    /// Path of the report.
    QString fileName() const { return m_fileName; }
    /// Paths of all that is written: the report and, where the parameters ask for them, files beside it.
    virtual QStringList outputFiles() const { return {m_fileName}; }
    /// Hands the file to the desktop's viewer.
    void openResult();

    /// \a value in the style of the locale, with zeros in front until \a integerDigits digits stand before the
    /// decimals.
    static QString formatNumber(double value, int integerDigits, int decimals);

    int pageNumber() const { return m_pageNumber; }
    int totalPages() const { return m_totalPages; }

protected:
    using Content = std::function<void()>;

    /// Fonts of the body, which all families use.
    void setBodyFonts();

    // --- parameters ---
    /// Fills the members of \a parameters and \a further, and those that all families share, from \a json.
    void readParameters(const QString &json, const ReportParameters &parameters, const ReportParameters &further = {});

    // --- the page ---
    int windowWidth() const { return m_painter->window().width(); }
    int windowHeight() const { return m_painter->window().height(); }
    /// Reserves the height of the foot before anything is drawn.
    void measureFooter();
    /// Where content ends on a page, above the foot.
    int contentBottom() const { return windowHeight() - m_footerHeight; }
    /// Runs \a drawing on pages that go nowhere, with the same measures, and leaves cursor and pages as they were.
    /// Returns how far \a drawing moved the cursor on its last page and how many pages it began.
    struct Extent {
        int height;
        int pages;
    };
    Extent rehearse(const Content &drawing);
    /// Whether what is drawn goes nowhere: pictures of a known height need not be made.
    bool isRehearsing() const { return m_rehearsing; }
    /// Begins a page: logo, title and rule. Returns where content starts.
    int drawPageHeader();
    /// Draws the foot with "n of N", once on a page. Returns its height.
    int drawFooter();
    /// Ends the page with its foot and begins the next. Returns where content starts.
    int newContentPage();

    // --- in the body; cursor and gaps are kept here ---
    /// A title and a box around what \a content draws. Content draws from y() on and leaves y() below it.
    void section(const QString &title, const Content &content);
    /// The same without a title.
    void box(const Content &content);
    void drawSectionTitle(const QString &text);
    void drawBox(int top, int bottom);
    /// A text over the whole width.
    void drawLine(const QString &text);
    /// Lines from the cursor on, in two columns side by side; each entry is one text of one or more lines.
    void drawTwoColumns(const QStringList &left, const QStringList &right);
    /// Texts side by side in \a count columns of the same width, from the left.
    void drawColumns(const QStringList &texts, int count);
    /// The texts in rows of \a count columns, each text in as few lines as it needs.
    void drawGrid(const QStringList &texts, int count);
    /// Columns of the same width, in each of which its lines stand one below the other.
    using IndexedLines = QVector<VfSubSuperScript::Line>;
    void drawIndexed(const QVector<IndexedLines> &columns);
    /// Draws \a text at (\a x, \a y), wrapped in the width of \a bounds; an absurdly long one is cut. Returns its
    /// height.
    int drawText(const QString &text, int x, int y, const QRect &bounds);
    /// "Date: " and the local date of \a dateTime. Returns its height.
    int drawDate(const QDateTime &dateTime, int x, int y);
    /// \a caption with \a value in small letters below it. Returns the height of both.
    int drawCaptionedValue(const QString &caption, const QString &value, int x, int y, const QRect &bounds);

    /// Puts \a chart across the page, \a height pixels high.
    template <class Chart> void placeChart(const Chart &chart, int height)
    {
        if (!isRehearsing())
            placeChart(chart, QRect(m_hSpace, m_y, windowWidth() + 1 - 2 * m_hSpace, height));
        m_y += height;
    }
    /// Puts \a chart in a place of the page and leaves the cursor.
    template <class Chart> void placeChart(const Chart &chart, const QRect &place)
    {
        chart.draw(m_painter.get(), place.x(), place.y(), place.size(), 1.0);
    }

    // --- sections that all families share ---
    /// Who measured where and for whom; begins the first page.
    void drawIdentification();
    /// The same with the texts \a left and \a right, and the date of the measurement below those at the right.
    void drawIdentification(const QStringList &left, const QStringList &right);
    /// "hh:mm:ss"
    static QString localTime(const QDateTime &moment);
    /// Whole seconds as "hh:mm:ss" of a clock: what is longer than a day begins anew.
    static QString timeOfDay(const QString &seconds);
    /// "Caption: value", or nothing when it is not switched on.
    static QStringList captioned(bool on, const QString &caption, const QString &value);
    /// "Cal. cert.: " with certificate and date of \a calibration.
    QString calibrationText(const Calibration &calibration) const;
    /// A box of 100 pixels; notes that need more are left out.
    void drawNotes();
    /// Line, name and ID of who reports, at the right.
    void drawSignature();

    // --- the log table ---
    /// A table of \a rows with \a header in the fonts of logs; the caller owns it.
    /// Rows of all records: number, local time and the cells that \a cellsOf gives.
    static QList<VfTableRow *> logRows(const Experiment *experiment,
                                       const std::function<QStringList(const Log &log)> &cellsOf);
    VfTable *makeLogTable(const QList<VfTableRow *> &rows, const QList<VfSubSuperScript *> &header);
    /// Pages that \a table needs; a table wider than the page needs none and switches tables off.
    int countTablePages(std::unique_ptr<VfTable> table);
    void drawLogTable(Experiment *experiment);
    /// Draws \a table over as many pages as it needs.
    void drawLogTable(std::unique_ptr<VfTable> table);

    // --- files beside the report ---
    /// The report's path with ".csv" in place of ".pdf".
    QString csvFileName() const;
    /// Writes \a content to csvFileName(). A file that can't be opened is left out; one that does not take it all is
    /// removed, and endPainting() fails.
    void writeCsvFile(const QByteArray &content);

protected slots:
    /// The log table begins a page.
    void newTablePage();
    /// The log table has filled a page.
    void finishTablePage();

protected:
    int m_vSpace = 3; ///< gap between elements
    int m_hSpace = 3; ///< inset of text in a box
    Calibration m_calibration;
    std::unique_ptr<QPainter> m_painter;
    Experiment *m_experiment = nullptr;
    bool m_ownCompanyInfoEnable = false;
    bool m_cmpnyInfoEnable = false;
    bool m_siteInfoEnable = false;
    bool m_collectorInfoEnable = false;
    bool m_emplInfoEnable = false;
    bool m_repInfoEnable = false;
    bool m_repIdInfoEnable = false;
    bool m_logoEnable = false;
    bool m_obsEnable = false;
    bool m_tableEnable = false; ///< key "ckbTable"
    QString m_reportTitle;
    QString m_footerText;
    QString m_ownCompany;
    QString m_cmpnyName;
    QString m_siteName;
    QString m_emplName;
    QString m_collectorName = QStringLiteral("John Joe");
    QString m_repName = QStringLiteral("Jane Joe");
    QString m_repIdReg = QStringLiteral("RS12345678");
    QString m_logoFile;
    QString m_productName;
    QString m_sn;
    QString m_obsText;
    int m_footerSpacing = 4; ///< between the rule of the foot and its text
    int m_headerSpacing = 3; ///< below the rule of the head
    int m_sectionTop = 0;    ///< cursor after the last closed box
    int m_pageNumber = 0;    ///< pages begun so far
    int m_totalPages = 0;
    int m_contentTop = 0;   ///< where content starts, below the head
    int m_footerHeight = 0; ///< height kept free for the foot
    int m_y = 0;            ///< the vertical cursor
    QFont m_logRowFont;
    QFont m_logHeaderFont;
    QFont m_sectionTitleFont;
    QFont m_textFont;
    QFont m_smallFont;
    QFont m_chartFont;
    std::unique_ptr<VfTable> m_table; ///< the table that is being drawn
    QString m_fileName;

private:
    /// Moves the painter's origin to (\a x, \a y).
    void moveTo(int x, int y);
    void drawRule(int y);
    /// Height of the foot with the gap above it.
    int footHeight() const;
    /// Draws the logo at the corner: the place it takes, empty without one.
    QSize drawLogo();
    /// Draws \a text at the painter's origin, wrapped in \a bounds; an absurdly long one is cut. Returns its height.
    int drawWrapped(const QString &text, const QRect &bounds, Qt::Alignment alignment);
    int drawColumn(const QStringList &texts, int x, int width);
    QString dateText(const QDateTime &dateTime) const;

    /// A page that goes nowhere.
    struct Nowhere;
    void beginPage();

    std::unique_ptr<Nowhere> m_nowhere; ///< made when it is first needed
    bool m_rehearsing = false;
    QImage m_logo;
    int m_footerPage = 0; ///< page whose foot is drawn
    bool m_filesComplete = true;
};
