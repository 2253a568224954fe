// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/fonts.h"
#include "report/vffullpagetable.h"
#include "report/vfnormaltable.h"
#include "report/vfsubsuperscript.h"
#include "tests/report/printedreport.h"

#include <QElapsedTimer>
#include <QPageSize>
#include <QPainter>
#include <QProcess>
#include <QTest>

namespace {

/// A window of a report's size.
class Paper
{
public:
    Paper() : m_image(604, 934, QImage::Format_RGB32), m_painter(&m_image) { m_image.fill(Qt::white); }
    QPainter *painter() { return &m_painter; }

private:
    QImage m_image;
    QPainter m_painter;
};

/// Notes where its rows and heads come to stand, and answers its own page signals.
class NotingTable : public VfFullPageTable
{
public:
    explicit NotingTable(QPainter *painter, bool answering = true) : VfFullPageTable(painter)
    {
        if (!answering)
            return;
        connect(this, &VfTable::newPage, this, [this] {
            ++page;
            setNewPageDone(true);
        });
        connect(this, &VfTable::finishPage, this, [this] { setFinishPageDone(true); });
    }
    int drawHeader(int x, int y) override
    {
        heads.append({x, y});
        return VfFullPageTable::drawHeader(x, y);
    }
    int drawRow(const VfTableRow &row, int height, int x, int y) override
    {
        rows.append({x, y});
        pages.append(page);
        return VfFullPageTable::drawRow(row, height, x, y);
    }
    int drawDateRow(const QString &, int, int) override { return ++dateRows, 0; }

    QVector<QPoint> heads;
    QVector<QPoint> rows;
    QVector<int> pages;
    int page = 0;
    int dateRows = 0;
};

QList<VfTableRow *> numbered(int count, int secondDayFrom = -1, const QStringList &more = {})
{
    QList<VfTableRow *> rows;
    for (int i = 0; i < count; ++i) {
        const QDate day(2019, 10, secondDayFrom >= 0 && i >= secondDayFrom ? 10 : 9);
        rows.append(new VfTableRow(QStringList{QStringLiteral("%1").arg(i + 1, 3, 10, QLatin1Char('0'))} + more, day));
    }
    return rows;
}

/// The same table laid out cell by cell.
class PlainTable : public VfFullPageTable
{
public:
    using VfFullPageTable::VfFullPageTable;
    int drawRow(const VfTableRow &row, int height, int x, int y) override
    {
        m_painter->resetTransform();
        m_painter->setFont(m_rowFont);
        for (int column = 0; column < row.cells.size(); ++column) {
            m_painter->drawText(QRect(x, y, m_columnWidths[column], height), Qt::AlignCenter | Qt::TextWordWrap,
                                row.cells[column]);
            x += m_columnWidths[column];
        }
        return height;
    }
};

template <class Table> void printTable(const QString &path)
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setResolution(96);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&printer);
    Table table(&painter);
    table.setRows(numbered(40, -1,
                           {QStringLiteral("21:00:00"), QStringLiteral("-5.3"), QStringLiteral("---"),
                            QStringLiteral("1,234.5"), QStringLiteral("25.3 °C")}));
    table.draw(0, 20);
}

QByteArray contentOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

} // namespace

class TestReportTables : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    void blocksFillThePage();
    void lastRowMayTouchTheMargin();
    void newDayNeedsTwoLinesAndTakesOne();
    void narrowRows();
    void unanswered();
    void sameAsPlainDrawing();
    void normalTable();
    void piecesOfALine();
};

void TestReportTables::blocksFillThePage()
{
    Paper paper;
    NotingTable table(paper.painter());
    table.setRows(numbered(500, -1, {QStringLiteral("21:00:00"), QStringLiteral("25.3")}));
    table.setHeader({new VfSubSuperScript(QStringLiteral("a"), {}, {}),
                     new VfSubSuperScript(QStringLiteral("b"), {}, {}),
                     new VfSubSuperScript(QStringLiteral("c"), {}, {})});
    const int width = table.totalWidth();
    const int blocks = 604 / width;
    QVERIFY(blocks > 2);
    table.setBottomMargin(20);
    QCOMPARE(table.draw(0, 30), 0);
    QCOMPARE(table.pageCount(30), table.page);
    QCOMPARE(table.rows.size(), 500);

    // in the middle of its share of the page; block by block, then page by page
    const int inset = (604 / blocks - width) / 2;
    QCOMPARE(table.rows.first(), QPoint(inset, 30 + table.headerHeight()));
    const int perBlock = (934 - 20 - 30 - table.headerHeight()) / table.rowHeight();
    QCOMPARE(table.rows[perBlock], QPoint(inset + 604 / blocks, 30 + table.headerHeight()));
    QCOMPARE(table.rows[perBlock * blocks], table.rows.first());
    QCOMPARE(table.pages[perBlock * blocks - 1], 1);
    QCOMPARE(table.pages[perBlock * blocks], 2);
    QCOMPARE(table.heads.size(), table.page);
}

void TestReportTables::lastRowMayTouchTheMargin()
{
    for (const int short_ : {0, 1}) {
        Paper paper;
        NotingTable table(paper.painter());
        table.setRows(numbered(10, -1, {QString(100, QLatin1Char('x'))})); // one block
        table.setBottomMargin(934 - 10 * table.rowHeight() + short_);
        QCOMPARE(table.draw(0, 0), 0);
        QCOMPARE(table.page, 1 + short_);
        QCOMPARE(table.pages.last(), 1 + short_);
    }
}

void TestReportTables::newDayNeedsTwoLinesAndTakesOne()
{
    Paper paper;
    NotingTable table(paper.painter());
    table.setRows(numbered(10, 9, {QString(100, QLatin1Char('x'))}));
    table.setBottomMargin(934 - 10 * table.rowHeight());
    QCOMPARE(table.draw(0, 0), 0);
    QCOMPARE(table.pages.last(), 2); // there was room for one line
    QCOMPARE(table.pageCount(0), 2);
    QCOMPARE(table.dateRows, 1);

    NotingTable inside(paper.painter());
    inside.setRows(numbered(3, 1));
    QCOMPARE(inside.draw(0, 0), 0);
    QCOMPARE(inside.rows[2].y() - inside.rows[1].y(), inside.rowHeight());
    QCOMPARE(inside.rows[1].y() - inside.rows[0].y(), inside.rowHeight());
}

void TestReportTables::narrowRows()
{
    Paper paper;
    NotingTable none(paper.painter());
    none.setRows({});
    QCOMPARE(none.draw(0, 0), 0);
    QCOMPARE(none.page, 0);

    NotingTable wide(paper.painter());
    wide.setRows(numbered(1, -1, {QString(130, QLatin1Char('8'))}));
    QVERIFY(wide.totalWidth() > 604);
    QCOMPARE(wide.draw(0, 0), -1);
    QCOMPARE(wide.pageCount(0), 0);

    NotingTable ragged(paper.painter());
    QList<VfTableRow *> rows = numbered(1);
    rows.append(new VfTableRow({QStringLiteral("002"), QStringLiteral("a cell too many")}, QDate(2019, 10, 9)));
    ragged.setRows(rows);
    QCOMPARE(ragged.columnCount(), 1);
    QCOMPARE(ragged.draw(0, 0), 0);
}

void TestReportTables::unanswered()
{
    Paper paper;
    NotingTable table(paper.painter(), false);
    table.setRows(numbered(2000));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(table.draw(0, 0), -1);
    QVERIFY(timer.elapsed() >= 900);
    QVERIFY(table.rows.size() < 2000);
}

void TestReportTables::sameAsPlainDrawing()
{
    QTemporaryDir folder;
    const QString quick = folder.filePath(QStringLiteral("quick.pdf"));
    const QString plain = folder.filePath(QStringLiteral("plain.pdf"));
    printTable<VfFullPageTable>(quick);
    printTable<PlainTable>(plain);
    const auto text = [](const QString &path) {
        return contentOf(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    };
    QVERIFY(text(quick).contains("25.3 °C"));
    QCOMPARE(text(quick), text(plain));
    for (const char *dpi : {"96", "150"}) {
        const auto page = [&](const QString &path) {
            return QImage::fromData(
                contentOf(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), QStringLiteral("-gray"),
                                                       QStringLiteral("-r"), QLatin1String(dpi), path}));
        };
        QVERIFY(largestDifference(page(quick), page(plain)) < 4); // a glyph may be drawn a 64th of a pixel beside
    }
}

void TestReportTables::normalTable()
{
    Paper paper;
    VfNormalTable table(paper.painter());
    table.setRows({new VfTableRow({QStringLiteral("Band"), QStringLiteral("1")}),
                   new VfTableRow({QStringLiteral("63"), QStringLiteral("70.25")})});
    table.setHeader(QStringList{QStringLiteral("Frequency of the band"), QStringLiteral("Level")});
    QCOMPARE(table.columnCount(), 2);
    QVERIFY(table.columnWidths()[0] > table.columnWidths()[1]);
    QCOMPARE(table.draw(0, 100), 100 + table.headerHeight() + 2 * table.rowHeight());

    VfNormalTable wide(paper.painter());
    wide.setRows({new VfTableRow({QString(200, QLatin1Char('x'))})});
    QVERIFY(wide.totalWidth() > 604);
    QCOMPARE(wide.draw(0, 100), 0);
}

void TestReportTables::piecesOfALine()
{
    Paper paper;
    QPainter *painter = paper.painter();
    VfSubSuperScript unit(QStringLiteral("[°C]"), {}, {});
    VfSubSuperScript bare(QStringLiteral("T"), {}, {});
    VfSubSuperScript below(QStringLiteral("T"), QStringLiteral("Dry"), {});
    VfSubSuperScript both(QStringLiteral("T"), QStringLiteral("Dry"), QStringLiteral("2"));
    VfSubSuperScript line(QStringLiteral("T"), QStringLiteral("Dry"), {}, &unit);
    QVERIFY(below.width(painter) > bare.width(painter));
    QCOMPARE(both.width(painter), below.width(painter)); // the wider index counts
    QVERIFY(line.width(painter) >= below.width(painter) + unit.width(painter));
    QVERIFY(both.height(painter) > below.height(painter));
    QVERIFY(below.height(painter) > bare.height(painter));
    QCOMPARE(line.draw(0, 0, 99, 19, painter), line.width(painter));

    VfSubSuperScript empty({}, QStringLiteral("Dry"), {}, &unit);
    QCOMPARE(empty.width(painter), 0);
    QCOMPARE(empty.height(painter), 0);
    QCOMPARE(empty.draw(painter), 0);
    QCOMPARE(empty.draw(0, 0, 99, 19, painter), 0);
}

QTEST_MAIN(TestReportTables)
#include "tst_report_tables.moc"
