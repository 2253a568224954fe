// SPDX-License-Identifier: GPL-3.0-or-later
// The suite as its user meets it: the real window, its buttons, lists and dialogs, and instruments on real ports.

#include "app/core.h"
#include "app/fonts.h"
#include "app/suite.h"
#include "simulator/families.h"
#include "simulator/simulatedinstrument.h"

#include <QApplication>
#include <QFileDialog>
#include <QJsonDocument>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Matches = std::function<bool(const QQuickItem *)>;

/// The first visible item at or below \a item that \a matches.
QQuickItem *findItem(QQuickItem *item, const Matches &matches)
{
    if (!item->isVisible())
        return nullptr;
    if (matches(item))
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findItem(child, matches))
            return found;
    }
    return nullptr;
}

QQuickItem *findInWindows(const Matches &matches)
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        const auto quick = qobject_cast<QQuickWindow *>(window);
        QQuickItem *found = quick && quick->isVisible() ? findItem(quick->contentItem(), matches) : nullptr;
        if (found)
            return found;
    }
    return nullptr;
}

Matches has(const char *property, const QVariant &value)
{
    return [property, value](const QQuickItem *item) { return item->property(property) == value; };
}

template <class Widget> Widget *visibleWidget()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        const auto found = qobject_cast<Widget *>(widget);
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void init();
    void cleanup();
    void fromInstrumentToFileAndBack_data();
    void fromInstrumentToFileAndBack();
    void unitsGrowAndShrink();
    void severalAtOnce_data();
    void severalAtOnce();
    void dailyExposure_data();
    void dailyExposure();
    void quantitiesGrowAndShrink();
    void configureAndErase_data() { products(); }
    void configureAndErase();
    void schedulesByKeyboard();
    void unplugInMidDownload_data() { products(); }
    void unplugInMidDownload();
    void closeInMidDownload();
    void doubleClicksCountOnce();
    void asksBeforeReplacing();
    void refusesADamagedFile();

private:
    void products();
    void click(QQuickItem *item);
    void press(const QString &button);
    void enter(const QString &product);
    void lookAtTabs(const QStringList &titles);
    void chooseFile(const QString &path);
    void answer(const QString &text, QMessageBox::StandardButton button);
    void type(const char *text)
    {
        for (; *text; ++text)
            QTest::keyClick(m_window, *text);
    }
    QString state() const { return m_root->property("state").toString(); }
    QQuickItem *experimentItem(int index) const;
    SimulatedInstrument &instrument(const QString &product)
    {
        return **std::find_if(m_instruments.cbegin(), m_instruments.cend(), [&](const auto &candidate) {
            return candidate->inside().identity().product == product.toLatin1();
        });
    }

    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<SimulatedInstrument>> m_instruments;
    std::unique_ptr<Core> m_core;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
    QQuickItem *m_root = nullptr;
};

void TestWindow::products()
{
    QTest::addColumn<QString>("product");
    QTest::newRow("one unit") << QStringLiteral("THALVEX 2");
    QTest::newRow("main unit and expansions") << QStringLiteral("THALVEX 4");
}

void TestWindow::init()
{
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedThalvex2(1)));
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedThalvex4(2, 3)));
    m_core = std::make_unique<Core>([this] {
        QStringList names;
        for (const auto &instrument : m_instruments)
            names.append(instrument->portName());
        return names;
    });
    m_engine = std::make_unique<QQmlApplicationEngine>();
    connect(m_engine.get(), &QQmlEngine::warnings, this, [](const QList<QQmlError> &warnings) {
        for (const QQmlError &warning : warnings)
            QTest::qFail(qPrintable(warning.toString()), __FILE__, __LINE__);
    });
    loadMainWindow(*m_engine, *m_core);
    QCOMPARE(m_engine->rootObjects().size(), 1);
    m_window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().first());
    QVERIFY(m_window);
    m_window->showNormal();
    m_window->resize(1300, 670);
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
    m_root = findItem(m_window->contentItem(), has("expUniqueItem", -3));
    QVERIFY(m_root);
}

void TestWindow::cleanup()
{
    qDeleteAll(m_engine->rootObjects());
    m_engine.reset();
    m_core.reset();
    m_instruments.clear();
}

void TestWindow::click(QQuickItem *item)
{
    QVERIFY(item);
    QTRY_VERIFY(item->isEnabled());
    const QPointF center = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, center.toPoint());
}

void TestWindow::press(const QString &button)
{
    QQuickItem *item = nullptr;
    QTRY_VERIFY2((item = findInWindows(has("buttonLabel", button))), qPrintable(button));
    click(item);
}

void TestWindow::enter(const QString &product)
{
    press(QStringLiteral("Find device"));
    QQuickItem *item = nullptr;
    QTRY_VERIFY((item = findInWindows(
                     has("serialNumber", QString::fromLatin1(instrument(product).inside().identity().serialNumber)))));
    click(item);
    QTRY_VERIFY(experimentItem(1) && experimentItem(3));
}

void TestWindow::lookAtTabs(const QStringList &titles)
{
    for (const QString &title : titles) {
        QQuickItem *button = findInWindows(
            [&](const QQuickItem *item) { return item->property("text") == title && item->property("checked").isValid(); });
        click(button);
        QTRY_VERIFY(button->property("checked").toBool());
        QTest::qWait(300); // what moves and draws between them
    }
}

QQuickItem *TestWindow::experimentItem(int index) const
{
    return findInWindows([index](const QQuickItem *item) {
        const QQmlContext *context = qmlContext(item);
        const QObject *model =
            context ? context->contextProperty(QStringLiteral("modelData")).value<QObject *>() : nullptr;
        return model && item->metaObject()->indexOfSignal("itemClicked()") >= 0 && model->property("index") == index;
    });
}

void TestWindow::chooseFile(const QString &path)
{
    QFileDialog *dialog = nullptr;
    QTRY_VERIFY((dialog = visibleWidget<QFileDialog>()));
    const auto name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QVERIFY(name);
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
}

void TestWindow::answer(const QString &text, QMessageBox::StandardButton button)
{
    QMessageBox *box = nullptr;
    QTRY_VERIFY2((box = visibleWidget<QMessageBox>()) && box->text() == text, qPrintable(text));
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

void TestWindow::fromInstrumentToFileAndBack_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("instrumentState");
    QTest::newRow("plain name") << QStringLiteral("THALVEX 2") << QStringLiteral("morning.tvx")
                                << QStringLiteral("Thalvex2State");
    QTest::newRow("blank, accent and signs")
        << QStringLiteral("THALVEX 2") << QStringLiteral("fundição 100% #1 a+b.tvx") << QStringLiteral("Thalvex2State");
    QTest::newRow("expansions") << QStringLiteral("THALVEX 4") << QStringLiteral("manhã.tv4")
                                << QStringLiteral("Thalvex4State");
}

void TestWindow::fromInstrumentToFileAndBack()
{
    QFETCH(QString, product);
    QFETCH(QString, fileName);
    QFETCH(QString, instrumentState);
    const QString resultsState =
        QString(instrumentState).replace(QLatin1String("State"), QLatin1String("ResultsState"));
    const QString path = m_folder.filePath(fileName);

    enter(product);
    QCOMPARE(state(), instrumentState);
    click(experimentItem(2));
    chooseFile(path);
    QTRY_COMPARE(state(), resultsState);
    const QString downloaded = m_core->experiment();
    QVERIFY2(QFileInfo::exists(path), qPrintable(path));

    click(findInWindows(has("label", QStringLiteral("Back"))));
    QTRY_COMPARE(state(), instrumentState);
    click(findInWindows(has("label", QStringLiteral("Back"))));
    QTRY_VERIFY(findInWindows(has("buttonLabel", QStringLiteral("Open file"))));

    press(QStringLiteral("Open file"));
    chooseFile(path);
    QTRY_COMPARE(state(), resultsState);
    QCOMPARE(m_core->experiment(), downloaded);
    click(findInWindows(has("label", QStringLiteral("Back"))));
    QTRY_VERIFY(findInWindows(has("buttonLabel", QStringLiteral("Open file"))));
}

/// Experiments of 4, 1, 3, 2 and 4 units shown one after the other, by download and by file, with time for what moves.
void TestWindow::unitsGrowAndShrink()
{
    const auto fileOf = [this](int units) { return m_folder.filePath(QStringLiteral("units%1.tv4").arg(units)); };
    const auto look = [this](int units) {
        QTRY_COMPARE(state(), QStringLiteral("Thalvex4ResultsState"));
        const QStringList tabs{QStringLiteral("Temperature x Time"), QStringLiteral("Results")};
        for (int unit = 1; unit < units; ++unit) {
            click(findInWindows(has("text", QStringLiteral("Expansion %1").arg(unit))));
            QTest::qWait(100);
            click(findInWindows(has("text", tabs[unit % 2])));
            QTest::qWait(300);
        }
        QVERIFY(!findInWindows(has("text", QStringLiteral("Expansion %1").arg(units))));
        QTest::qWait(300);
    };
    for (const int units : {4, 1, 3, 2}) {
        m_instruments[1] = std::make_unique<SimulatedInstrument>(simulatedThalvex4(2, units - 1));
        m_core->findDevices();
        QCOMPARE(m_core->createDevice(1), 0);
        QCOMPARE(m_core->findExperiments(), 0);
        QCOMPARE(m_core->createExperiment(QStringLiteral("[1]")), 0);
        look(units);
        QCOMPARE(m_core->saveExperimentToFile(fileOf(units)), 0);
    }
    for (const int units : {4, 1, 3, 2, 4}) {
        m_core->parseFile(fileOf(units));
        look(units);
    }
}

void TestWindow::severalAtOnce_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("name");
    QTest::newRow("one weighting") << QStringLiteral("NEMBRA") << QStringLiteral("Nembra");
    QTest::newRow("all weightings") << QStringLiteral("NEMBRA+") << QStringLiteral("NembraPlus");
}

/// Three experiments, one without octaves and overloaded, one in thirds, one in octaves and by hand: ticked, downloaded
/// together, walked through tab by tab, and so again from their file.
void TestWindow::severalAtOnce()
{
    QFETCH(QString, product);
    QFETCH(QString, name);
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedNembra(3)));
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedNembraPlus(4)));
    const QString path = m_folder.filePath(name);
    const auto walk = [&] {
        QTRY_COMPARE(state(), name + QLatin1String("ResultsState"));
        const QString first = m_core->experiment();
        for (const char *arrow : {"Next experiment", "Next experiment", "Previous experiment", "Previous experiment", ""}) {
            lookAtTabs({"L<sub>eq</sub> x Octave", "Results", "L<sub>Aeq</sub> x Time"});
            if (*arrow)
                click(findInWindows(has("label", QLatin1String(arrow))));
        }
        QVERIFY(!findInWindows(has("label", QStringLiteral("Previous experiment"))));
        QCOMPARE(m_core->experiment(), first);
    };
    enter(product);
    QCOMPARE(state(), name + QLatin1String("State"));
    for (const int index : {4, 1, 3})
        click(experimentItem(index));
    press(QStringLiteral("Accept"));
    chooseFile(path);
    walk();
    const QString downloaded = m_core->experiment();
    for (int back = 0; back < 2; ++back)
        click(findInWindows(has("label", QStringLiteral("Back"))));
    press(QStringLiteral("Open file"));
    chooseFile(path + (product.endsWith(QLatin1Char('+')) ? QLatin1String(".nbp") : QLatin1String(".nbr")));
    walk();
    QCOMPARE(m_core->experiment(), downloaded);
}

/// A chain of 1, 8, 3 and 1 quantities walked to and fro, and again from its file.
void TestWindow::quantitiesGrowAndShrink()
{
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedZelk(5)));
    const QString path = m_folder.filePath(QStringLiteral("all.zlk"));
    const auto walk = [this] {
        QTRY_COMPARE(state(), QStringLiteral("ZelkResultsState"));
        const char *const arrows[] = {"Next", "Next", "Next", "Previous", "Previous", "Previous", nullptr};
        const int quantities[] = {1, 8, 3, 1, 3, 8, 1};
        for (int step = 0; step < 7; ++step) {
            lookAtTabs({"Results", "Table", "Charts"});
            QCOMPARE(findInWindows(has("listName", "Quantities"))->property("count").toInt(), quantities[step]);
            if (arrows[step])
                click(findInWindows(has("label", QLatin1String(arrows[step]) + QLatin1String(" experiment"))));
        }
    };
    m_core->findDevices();
    QCOMPARE(m_core->createDevice(2), 0);
    QCOMPARE(m_core->findExperiments(), 0);
    QCOMPARE(m_core->createExperiment(QStringLiteral("[0,5,2,6]")), 0);
    walk();
    QCOMPARE(m_core->saveExperimentToFile(path), 0);
    m_core->parseFile(path);
    walk();
}

void TestWindow::dailyExposure_data()
{
    QTest::addColumn<QVector<int>>("sizes");
    QTest::newRow("three that differ") << QVector<int>{1, 480, 25};
    QTest::newRow("sixty") << QVector<int>(60, 2);
}

/// Measurements ticked, and their exposure times given, by keyboard; each of them looked at, another working day, and so
/// again from their file.
void TestWindow::dailyExposure()
{
    QFETCH(QVector<int>, sizes);
    QVector<SimulatedExperiment> memory;
    for (const int size : qAsConst(sizes)) {
        memory.append(SimulatedExperiment());
        memory.last().size = size;
        memory.last().type = "H";
    }
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedLomtrix(5, memory)));
    const QString path = m_folder.filePath(QStringLiteral("day%1.lmt").arg(sizes.size()));
    const auto figure = [this](const char *key) {
        const QJsonDocument shown = QJsonDocument::fromJson(m_core->experiment().toUtf8());
        return shown[QLatin1String("results")][QLatin1String(key)].toDouble();
    };
    const auto giveTimes = [&] {
        QTRY_COMPARE(state(), QStringLiteral("LomtrixComponentsState"));
        m_window->requestActivate();
        QTRY_VERIFY(m_window->activeFocusItem() && m_window->activeFocusItem()->property("inputMask").isValid());
        for (int i = 0; i < sizes.size(); ++i) {
            type("0020");
            QTest::keyClick(m_window, Qt::Key_Tab);
        }
        QTest::keyClick(m_window, Qt::Key_Return); // on "Next"
        QTRY_COMPARE(state(), QStringLiteral("LomtrixResultsState"));
    };

    enter(QStringLiteral("LOMTRIX"));
    QCOMPARE(state(), QStringLiteral("LomtrixState"));
    click(experimentItem(1));
    for (int i = 1; i < sizes.size(); ++i) {
        QTest::keyClick(m_window, Qt::Key_Down);
        QTest::keyClick(m_window, Qt::Key_Space);
    }
    press(QStringLiteral("Accept"));
    chooseFile(path);
    giveTimes();
    const double are = figure("are");
    QVERIFY(are > 0);
    for (int i = 1; i < sizes.size(); ++i) {
        if (i < 4)
            lookAtTabs({"Acceleration x Time", "Amr x Octave", "Table"});
        click(findInWindows(has("label", QStringLiteral("Next experiment"))));
    }
    QVERIFY(!findInWindows(has("label", QStringLiteral("Next experiment"))));
    QCOMPARE(figure("are"), are);

    click(findInWindows(has("selectByMouse", true))); // the working hours
    type("0200");
    QTest::keyClick(m_window, Qt::Key_Return);
    QVERIFY(qAbs(figure("are") - 2 * are) < 1e-9);
    QVERIFY(findInWindows(has("text", QLocale().toString(2 * are, 'f', 2))));

    for (int back = 0; back < 3; ++back)
        click(findInWindows(has("label", QStringLiteral("Back"))));
    press(QStringLiteral("Open file"));
    chooseFile(path);
    giveTimes();
    QCOMPARE(figure("are"), are);
}

void TestWindow::configureAndErase()
{
    QFETCH(QString, product);
    enter(product);
    VirtualInstrument &inside = instrument(product).inside();
    press(QStringLiteral("Configure"));
    QTRY_VERIFY(findInWindows(has("text", QStringLiteral("°F"))));
    click(findInWindows(has("text", QStringLiteral("°F"))));
    press(QStringLiteral("Apply"));
    answer(QStringLiteral("The changes have been applied."), QMessageBox::Ok);
    QCOMPARE(inside.setting("VFUNIT"), QByteArray("\"F\""));

    press(QStringLiteral("Erase memory"));
    press(QStringLiteral("No"));
    QTRY_VERIFY(!findInWindows(has("buttonLabel", QStringLiteral("No"))));
    QVERIFY(!inside.memory().isEmpty());
    press(QStringLiteral("Erase memory"));
    press(QStringLiteral("Yes"));
    answer(QStringLiteral("Memory have been erased."), QMessageBox::Ok);
    QVERIFY(inside.memory().isEmpty());
    QTRY_VERIFY(!experimentItem(1));
}

/// A schedule over midnight is typed and added, a second time refused, and written with "Apply"; the instrument goes away
/// when it is written again.
void TestWindow::schedulesByKeyboard()
{
    m_instruments.push_back(std::make_unique<SimulatedInstrument>(simulatedArdel2(5)));
    SimulatedInstrument &dosimeter = *m_instruments.back();
    enter(QStringLiteral("ARDEL 2"));
    press(QStringLiteral("Configure"));
    QQuickItem *day = nullptr;
    QTRY_VERIFY((day = findInWindows(has("description", QStringLiteral("Month day")))));
    day = day->property("field").value<QQuickItem *>();
    QWindow *window = day->window();
    QVERIFY(QTest::qWaitForWindowActive(window));
    const auto type = [window](const QByteArray &keys) {
        for (const char key : keys)
            QTest::keyClick(window, key == '\t' ? Qt::Key_Tab : key == '\n' ? Qt::Key_Return : QTest::asciiToKey(key));
    };
    const auto told = [](const char *warning) { return findInWindows(has("warning", QLatin1String(warning))); };
    const auto apply = [] { // each tab has one
        return findInWindows([](const QQuickItem *item) {
            return item->property("buttonLabel") == QLatin1String("Apply") && item->isEnabled();
        });
    };
    const auto schedules = [this] { return m_core->virtualSchedulelist().value<QList<QObject *>>().size(); };
    while (schedules() > 0)
        m_core->removeSchedule(0);
    window->requestActivate();
    const auto walkTo = [&type](const QQuickItem *item) {
        for (int tabs = 0; tabs < 30 && !item->hasActiveFocus(); ++tabs)
            type("\t");
        return item->hasActiveFocus();
    };
    QQuickItem *tab = findInWindows([](const QQuickItem *item) {
        return item->inherits("QQuickTabButton") && item->property("text") == QLatin1String("Schedule");
    });
    QVERIFY(tab);
    QTRY_VERIFY(walkTo(tab));
    type("\n");
    QTRY_VERIFY(day->isEnabled());
    QTRY_VERIFY(walkTo(day));
    type("31\tn1\t2200\t0600\n");
    QTRY_COMPARE(schedules(), 1);
    QVERIFY(day->hasActiveFocus());
    type("31\n");
    QVERIFY(told("The schedule is not available."));
    dosimeter.clearCommands();
    QTRY_VERIFY(apply());
    click(apply());
    answer(QStringLiteral("The changes have been applied."), QMessageBox::Ok);
    QCOMPARE(dosimeter.commands().size(), 12);
    QVERIFY(dosimeter.commands()[1].startsWith("AT+VFSCH=1,0,\"n1\",\""));
    QCOMPARE(dosimeter.commands().last(), QByteArray("AT+VFSCH=3,1\r\n"));

    dosimeter.fault(Fault::unplugged(5).on("AT+VFSCH=2,").at(3));
    QTRY_VERIFY(apply());
    click(apply());
    answer(QStringLiteral("Instrument disconnected."), QMessageBox::Ok);
    QTRY_VERIFY(!window->isVisible() && findInWindows(has("buttonLabel", QStringLiteral("Find device"))));
}

void TestWindow::unplugInMidDownload()
{
    QFETCH(QString, product);
    enter(product);
    instrument(product).fault(Fault::unplugged(100).on("AT+VFRDXP=").at(3));
    click(experimentItem(3));
    chooseFile(m_folder.filePath(QStringLiteral("lost")));
    answer(QStringLiteral("Instrument disconnected."), QMessageBox::Ok);
    QTRY_VERIFY(findInWindows(has("buttonLabel", QStringLiteral("Find device"))));
    QVERIFY(m_core->experiment().isEmpty());
    QVERIFY(QDir(m_folder.path()).entryList({QStringLiteral("lost*")}).isEmpty());
}

void TestWindow::closeInMidDownload()
{
    enter(QStringLiteral("THALVEX 2"));
    m_instruments[0]->setDelay(20);
    int shown = 0;
    connect(m_core.get(), &Core::progressBarUpdated, this, [&](double progress) {
        if (progress > 0 && ++shown == 1)
            m_window->close();
    });
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(m_core->createExperiment(QStringLiteral("[4]")), -4);
    QCOMPARE(shown, 1);
    QVERIFY2(elapsed.elapsed() < 5000, "a download of a minute was not ended");
}

void TestWindow::doubleClicksCountOnce()
{
    for (const auto &instrument : m_instruments)
        instrument->setDelay(30);
    const auto doubleClick = [this](const Matches &matches) {
        QQuickItem *item = nullptr;
        QTRY_VERIFY((item = findInWindows(matches)));
        QTRY_VERIFY(item->isEnabled());
        const QPoint place = item->mapToScene(QPointF(item->width() / 2, 20)).toPoint();
        for (const int delay : {0, 60}) { // the second click comes while the first one's work is done
            QTest::qWait(delay);
            QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, place);
        }
    };
    doubleClick(has("buttonLabel", QStringLiteral("Find device")));
    QTRY_COMPARE(m_core->deviceList().value<QList<QObject *>>().size(), 2);
    m_instruments[0]->clearCommands();
    doubleClick(has("productName", QStringLiteral("THALVEX 2")));
    QTRY_COMPARE(state(), QStringLiteral("Thalvex2State"));
    QTRY_VERIFY(!m_root->property("busy").toBool());
    QVERIFY(!visibleWidget<QFileDialog>());
    QCOMPARE(std::count_if(m_instruments[0]->commands().cbegin(), m_instruments[0]->commands().cend(),
                           [](const QByteArray &command) { return command.startsWith("AT+CCLK="); }),
             1);
}

/// Names typed without their endings: what stands under the whole names is not lost unasked.
void TestWindow::asksBeforeReplacing()
{
    const auto contentOf = [this](const char *name) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    for (const char *name : {"one.tvx", "report.csv"}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }
    enter(QStringLiteral("THALVEX 2"));
    click(experimentItem(1));
    chooseFile(m_folder.filePath(QStringLiteral("one")));
    press(QStringLiteral("No"));
    QTRY_VERIFY(visibleWidget<QFileDialog>());
    QCOMPARE(contentOf("one.tvx"), QByteArray("old"));
    chooseFile(m_folder.filePath(QStringLiteral("one")));
    press(QStringLiteral("Yes"));
    QTRY_COMPARE(state(), QStringLiteral("Thalvex2ResultsState"));
    QVERIFY(contentOf("one.tvx").size() > 3);

    press(QStringLiteral("Generate report"));
    press(QStringLiteral("File"));
    chooseFile(m_folder.filePath(QStringLiteral("report")));
    press(QStringLiteral("Generate PDF"));
    press(QStringLiteral("No"));
    QCOMPARE(contentOf("report.csv"), QByteArray("old"));
    QVERIFY(contentOf("report.pdf").isEmpty());
}

void TestWindow::refusesADamagedFile()
{
    const QString path = m_folder.filePath(QStringLiteral("damaged.tvx"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("e30=\n00000000000000000000000000000000");
    file.close();
    press(QStringLiteral("Open file"));
    chooseFile(path);
    answer(QStringLiteral("The file is invalid. Maybe it was edited by another software."), QMessageBox::Ok);
    QVERIFY(findInWindows(has("buttonLabel", QStringLiteral("Open file"))));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    loadApplicationFonts();
    TestWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_window.moc"
