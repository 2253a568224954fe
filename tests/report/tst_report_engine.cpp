// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core.h"
#include "app/fonts.h"
#include "report/vfprinter.h"
#include "report/vfsubsuperscript.h"
#include "report/vftable.h"
#include "tests/model/fulldisk.h"
#include "tests/report/measurements.h"
#include "tests/report/printedreport.h"

#include <QDesktopServices>
#include <QTest>
#include <QUrl>

#include <optional>

namespace {

/// A report of what all families share, with a table of numbered rows.
class SharedReport : public VfPrinter
{
public:
    SharedReport()
    {
        m_reportTitle = QStringLiteral("Shared Report");
        m_footerText = QStringLiteral(" ");
        setBodyFonts();
        setProductName(QStringLiteral("THALVEX 2"));
        setSn(QStringLiteral("T2-00123"));
    }
    int printReport() override
    {
        if (beginPainting() != 0)
            return -1;
        measureFooter();
        drawIdentification();
        section(QStringLiteral("Body"), [this] {
            drawColumns({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")}, 3);
            drawLine(calibrationText(m_calibration));
            m_y += drawCaptionedValue(QStringLiteral("Caption"), QStringLiteral("Value"), m_hSpace, m_y,
                                      QRect(0, 0, 100, 100));
        });
        drawNotes();
        drawSignature();
        calculateTotalPages(m_tableEnable);
        m_footerHeight = drawFooter();
        for (Experiment *member = m_experiment; m_tableEnable && member; member = member->next())
            drawLogTable(member);
        return 0;
    }
    void setParameters(const QString &json) override { readParameters(json, {}); }
    QList<VfTableRow *> logTableRows(Experiment *experiment) override
    {
        QList<VfTableRow *> rows;
        for (int i = 1; i <= experiment->logs().size(); ++i)
            rows.append(new VfTableRow({QString::number(i), QString(cellLength, QLatin1Char('8'))}));
        return rows;
    }
    QList<VfSubSuperScript *> logTableHeader(Experiment *) override
    {
        return {new VfSubSuperScript(QStringLiteral("No"), {}, {}),
                new VfSubSuperScript(QStringLiteral("Value"), {}, {})};
    }
    int cellLength = 10;
};

/// Notes what the desktop is asked to open.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

} // namespace

class TestReportEngine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { loadApplicationFonts(); }

    void fileNames_data();
    void fileNames();
    void startValues();
    void numbers_data();
    void numbers();
    void pageOfAFixedSize();
    void opensTheFileItWrote_data();
    void opensTheFileItWrote();
    void opensOnlyWhatIsComplete_data();
    void opensOnlyWhatIsComplete();
    void bareFirstPage();
    void logo();
    void notes_data();
    void notes();
    void signature_data();
    void signature();
    void longTextsKeepApart();
    void pagesOfAChain();
    void tableTooWide();
};

void TestReportEngine::fileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("no ending") << "C:/a/report"
                               << "C:/a/report.pdf";
    QTest::newRow("URL with a drive") << "file:///C:/a/r.pdf"
                                      << "C:/a/r.pdf";
    QTest::newRow("URL from the root") << "file:///home/ana/r.pdf"
                                       << "/home/ana/r.pdf";
    QTest::newRow("other ending") << "/home/ana/r.PDF"
                                  << "/home/ana/r.PDF.pdf";
    QTest::newRow("encoded") << "file:///home/ana/100%25 n%231"
                             << "/home/ana/100% n#1.pdf";
}

void TestReportEngine::fileNames()
{
    QFETCH(QString, name);
    SharedReport report;
    report.setParameters(QStringLiteral("{\"fileName\": \"%1\"}").arg(name));
    QTEST(report.fileName(), "file");
    QCOMPARE(report.outputFileName(), report.fileName());
}

void TestReportEngine::startValues()
{
    qputenv("TEMP", "/var/tmp");
    SharedReport inTemp;
    QCOMPARE(inTemp.fileName(), QStringLiteral("/var/tmp/temp.pdf"));
    qunsetenv("TEMP");
    SharedReport report;
    QCOMPARE(report.fileName(), QStringLiteral("/tmp//temp.pdf"));
    QCOMPARE(report.creator(), QStringLiteral("Suite Morvane 716"));
    for (const char *text : {"", "nonsense", "[1, 2]", "null"}) {
        report.setParameters(QLatin1String(text));
        QCOMPARE(report.fileName(), QStringLiteral("/tmp//temp.pdf"));
    }
}

void TestReportEngine::numbers_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("padded") << "C" << 5.64 << 2 << 2 << "05.64";
    QTest::newRow("long enough") << "C" << 25.0 << 2 << 2 << "25.00";
    QTest::newRow("longer") << "C" << 125.126 << 2 << 2 << "125.13";
    QTest::newRow("below zero") << "C" << -5.0 << 2 << 1 << "-05.0";
    QTest::newRow("no decimals") << "C" << 7.0 << 3 << 0 << "007";
    QTest::newRow("decimal comma") << "pt_BR" << 5.64 << 2 << 2 << "05,64";
}

void TestReportEngine::numbers()
{
    QFETCH(QString, locale);
    QFETCH(double, value);
    QFETCH(int, digits);
    QFETCH(int, decimals);
    QLocale::setDefault(QLocale(locale));
    const QString text = VfPrinter::formatNumber(value, digits, decimals);
    QLocale::setDefault(QLocale::system());
    QTEST(text, "text");
}

void TestReportEngine::pageOfAFixedSize()
{
    SharedReport report;
    QCOMPARE(report.width(), 604);
    QCOMPARE(report.height(), 934);
}

void TestReportEngine::opensTheFileItWrote_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a blank", "Fundição", "n#1", "100%", "50%25", "what?"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestReportEngine::opensTheFileItWrote()
{
    QFETCH(QString, name);
    QTemporaryDir folder;
    const QString path = folder.filePath(name + QLatin1String(".pdf"));
    const ExperimentChain experiment = Measurements::thalvex2({});
    Desktop desktop;
    SharedReport report;
    const QString url = QUrl::fromLocalFile(path).toString(); // as a file dialog hands it over
    const PrintedReport printed(&report, experiment.get(), {{QStringLiteral("fileName"), url}});
    QCOMPARE(printed.result(), 0);
    QVERIFY(QFile::exists(path));
    report.openResult();
    QCOMPARE(desktop.opened.size(), 1);
    QCOMPARE(desktop.opened.first().toLocalFile(), path);
}

void TestReportEngine::opensOnlyWhatIsComplete_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("opened");
    QTest::newRow("written") << "" << 1000000 << 0 << 1;
    QTest::newRow("cannot be begun") << "no/such/folder/" << 1000000 << 0 << 0;
    QTest::newRow("disk full") << "" << 10000 << -1 << 0;
    QTest::newRow("disk full from the start") << "" << 0 << -1 << 0;
}

void TestReportEngine::opensOnlyWhatIsComplete()
{
    QFETCH(QString, folder);
    QFETCH(int, room);
    QTemporaryDir files;
    const QString path = files.filePath(folder + "r.pdf");
    Core core([] { return QStringList(); });
    core.parseFile(MORVANE_TEST_DATA "/one.tvx");
    Desktop desktop;
    std::optional<FullDisk> full(std::in_place, room);
    const int code = core.generateReport("{\"fileName\": \"" + path + "\"}");
    full.reset();
    QTEST(code, "code");
    QTEST(desktop.opened.size(), "opened");
    QCOMPARE(QFile::exists(path), desktop.opened.size() == 1);
}

void TestReportEngine::bareFirstPage()
{
    const ExperimentChain experiment = Measurements::thalvex2({});
    SharedReport report;
    const PrintedReport printed(&report, experiment.get(), {});
    const QString text = printed.text();
    QVERIFY(text.contains(QLatin1String("Shared Report @ THALVEX 2 SN: T2-00123")));
    const QString day = QLocale::system().language() == QLocale::German ? "09.10.2019" : "9 Oct 2019";
    QVERIFY(text.contains("Date: " + day));
    QVERIFY(text.contains("Cal. cert.: --- ---"));
    QCOMPARE(printed.info("Title"), "Shared Report, T2-00123, " + day);
    for (const char *absent :
         {"Company evaluated", "Site/Area", "Valuation company", "Collected by", "Notes", "ID", "___"})
        QVERIFY2(!text.contains(QLatin1String(absent)), absent);
    QVERIFY(text.contains(QLatin1String("1 of 1")));
    QVERIFY(printed.box(QStringLiteral("second")).left() > 200);
    QVERIFY(printed.box(QStringLiteral("Value")).top() > printed.box(QStringLiteral("Caption")).top() + 8);
}

void TestReportEngine::logo()
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("logo.png"));
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::black);
    QVERIFY(image.save(file));
    const ExperimentChain experiment = Measurements::thalvex2({});
    QJsonObject choices = switchedOn({QStringLiteral("logoEnable")});
    choices.insert(QStringLiteral("logoFile"), QUrl::fromLocalFile(file).toString());
    SharedReport report;
    const PrintedReport printed(&report, experiment.get(), choices);

    // the head is centred in what the logo's 30 pixels leave
    const double middle =
        (printed.box(QStringLiteral("Shared")).left() + printed.box(QStringLiteral("T2-00123")).right()) / 2;
    QVERIFY(qAbs(middle - (30 + 574 / 2.0)) < 2);
    // 25 by 25 pixels at the corner of the margins; content below it
    const QImage page = printed.image(1, 96);
    const int left = qRound(30 / 25.4 * 96);
    QCOMPARE(printed.pictures(), QStringList{"400 x 400 lossless"});
    QVERIFY(qGray(page.pixel(left + 12, left + 12)) < 50);
    QVERIFY(qGray(page.pixel(left + 28, left + 12)) > 200);
    QVERIFY(printed.box(QStringLiteral("Date:")).top() > 33);
}

void TestReportEngine::notes_data()
{
    QTest::addColumn<QString>("notes");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none") << "" << false;
    QTest::newRow("short") << "Doors open" << true;
    QTest::newRow("eight lines") << "Doors open" + QString(7, QLatin1Char('\n')) << true;
    QTest::newRow("too many lines") << "Doors open" + QString(12, QLatin1Char('\n')) + "end" << false;
    QTest::newRow("3000 characters") << QStringLiteral("Doors open ").repeated(300).left(3000) << false;
}

void TestReportEngine::notes()
{
    QFETCH(QString, notes);
    QFETCH(bool, shown);
    const ExperimentChain experiment = Measurements::thalvex2({});
    QJsonObject choices = switchedOn({QStringLiteral("obsEnable"), QStringLiteral("repInfoEnable")});
    choices.insert(QStringLiteral("obsText"), notes);
    choices.insert(QStringLiteral("repName"), QStringLiteral("Signer"));
    SharedReport report;
    const PrintedReport printed(&report, experiment.get(), choices);
    QCOMPARE(printed.text().contains(QLatin1String("Doors open")), shown);
    // the box is of the same height whatever the notes
    const double below = printed.box(QStringLiteral("Signer")).top() - printed.box(QStringLiteral("Notes")).top();
    QVERIFY2(qAbs(below - 144) < 6, qPrintable(QString::number(below)));
}

void TestReportEngine::signature_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("nobody") << QStringList() << QStringList();
    QTest::newRow("name") << QStringList{"repInfoEnable"} << QStringList{"Signer"};
    QTest::newRow("ID") << QStringList{"repIdInfoEnable"} << QStringList{"ID: R-77"};
    QTest::newRow("both") << QStringList{"repInfoEnable", "repIdInfoEnable"} << QStringList{"Signer", "ID: R-77"};
}

void TestReportEngine::signature()
{
    QFETCH(QStringList, keys);
    QFETCH(QStringList, shown);
    const ExperimentChain experiment = Measurements::thalvex2({});
    QJsonObject choices = switchedOn(keys);
    choices.insert(QStringLiteral("repName"), QStringLiteral("Signer"));
    choices.insert(QStringLiteral("repIdReg"), QStringLiteral("R-77"));
    SharedReport report;
    const PrintedReport printed(&report, experiment.get(), choices);
    const QString text = printed.text();
    QCOMPARE(text.contains(QString(41, QLatin1Char('_'))), !shown.isEmpty());
    for (const QString &line : {QStringLiteral("Signer"), QStringLiteral("ID: R-77")})
        QCOMPARE(text.contains(line), shown.contains(line));
    if (!shown.isEmpty())
        QVERIFY(printed.box(QString(41, QLatin1Char('_'))).left() > 604 / 2);
}

void TestReportEngine::longTextsKeepApart()
{
    const ExperimentChain experiment = Measurements::thalvex2({});
    QJsonObject choices =
        switchedOn({QStringLiteral("cmpnyInfoEnable"), QStringLiteral("siteInfoEnable"),
                    QStringLiteral("ownCompanyInfoEnable"), QStringLiteral("collectorInfoEnable"),
                    QStringLiteral("obsEnable"), QStringLiteral("repInfoEnable"), QStringLiteral("repIdInfoEnable")});
    const QString words = QStringLiteral("Companhia de Fundição e Laminação ").repeated(6);
    for (const char *key : {"cmpnyName", "ownCompany", "collectorName"})
        choices.insert(QLatin1String(key), words);
    for (const char *key : {"siteName", "repName"})
        choices.insert(QLatin1String(key), QString(150, QLatin1Char('W'))); // a word that is wider than its column
    choices.insert(QStringLiteral("repIdReg"), QString(100000, QLatin1Char('X')));
    choices.insert(QStringLiteral("obsText"), words + words);
    SharedReport report;
    report.setSn(QString(60, QLatin1Char('7')));
    const PrintedReport printed(&report, experiment.get(), choices);
    const QVector<PrintedReport::Word> all = printed.words(1);
    QCOMPARE(overlaps(all), QStringList());
    const QString inOrder = printed.text(1, "-raw");
    QVERIFY(inOrder.indexOf("Site/Area") < inOrder.indexOf("Valuation company")); // as it is copied and read aloud
    int letters = 0;
    for (const PrintedReport::Word &word : all) {
        QVERIFY2(word.box.left() > -2 && word.box.right() < 606 && word.box.bottom() < 940, qPrintable(word.text));
        letters += word.text.count(QLatin1Char('W'));
    }
    QCOMPARE(letters, 300); // none is cut off
}

void TestReportEngine::pagesOfAChain()
{
    ExperimentChain chain = Measurements::thalvex2({});
    Measurements::Course longer;
    longer.samples = 900;
    chain->append(Measurements::thalvex2(longer).release());
    SharedReport plain;
    const PrintedReport without(&plain, chain.get(), {});
    QCOMPARE(plain.totalPages(), 2);
    QCOMPARE(without.pages(), 1);

    SharedReport report;
    const PrintedReport printed(&report, chain.get(), switchedOn({QStringLiteral("ckbTable")}));
    // the report has one page in front of the tables, the count one for each experiment
    QCOMPARE(printed.pages(), report.pageNumber());
    QCOMPARE(report.totalPages(), report.pageNumber() + 1);
    QVERIFY(printed.text(printed.pages()).contains(QLatin1String("900")));
}

void TestReportEngine::tableTooWide()
{
    const ExperimentChain experiment = Measurements::thalvex2({});
    SharedReport report;
    report.cellLength = 200;
    const PrintedReport printed(&report, experiment.get(), switchedOn({QStringLiteral("ckbTable")}));
    QCOMPARE(report.totalPages(), 1);
    QCOMPARE(printed.pages(), 1);
    QVERIFY(printed.text().contains(QLatin1String("1 of 1")));
}

QTEST_MAIN(TestReportEngine)
#include "tst_report_engine.moc"
