// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suite.h"

#include "app/core.h"
#include "app/fonts.h"
#include "app/outputs.h"
#include "model/buildinfo.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPixmap>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QSplashScreen>
#include <QTranslator>
#include <QVBoxLayout>
#include <QWindow>

void loadMainWindow(QQmlApplicationEngine &engine, Core &core)
{
    engine.rootContext()->setContextProperty(QStringLiteral("core"), &core);
    engine.setInitialProperties({{QStringLiteral("outputs"), QVariant::fromValue<QObject *>(new Outputs(&core))}});
    engine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    // Not the application's lastWindowClosed: that also tells of every message and file dialog that closes.
    QObject::connect(&engine, &QQmlEngine::quit, &core, &Core::closePorts);
    const QObjectList roots = engine.rootObjects();
    for (QObject *root : roots) {
        if (const auto window = qobject_cast<QWindow *>(root)) {
            QObject::connect(window, &QWindow::visibleChanged, &core, [&core](bool visible) {
                if (!visible)
                    core.closePorts();
            });
        }
    }
}

int runSuite(int argc, char **argv, PortNames portNames)
{
    QApplication application(argc, argv);
    QTranslator translator;

    const QPixmap picture(QStringLiteral(":/splash.png"));
    QSplashScreen splash(picture, Qt::WindowFlags());
    const auto layout = new QVBoxLayout(&splash);
    const QStringList families = QFontDatabase::applicationFontFamilies(loadApplicationFonts());
    const QFont font(families.value(0), -1, -1, false);
    const auto label = new QLabel(QStringLiteral("V1.0.") + BuildInfo::revision(), &splash);
    label->setFont(font);
    QPalette ink = label->palette();
    ink.setColor(QPalette::WindowText, Qt::black); // the picture is light, whatever the desktop's colours
    label->setPalette(ink);
    label->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    layout->addWidget(label, 0, Qt::Alignment());
    splash.setLayout(layout);
    splash.setFont(font);
    splash.show();
    QCoreApplication::processEvents();

    const auto tell = [&splash](const QString &message) {
        splash.showMessage(message, Qt::AlignLeft, Qt::black);
        QCoreApplication::processEvents();
    };
    tell(QStringLiteral("Loading locales..."));
    // A translation takes effect when a file of exactly the locale's name lies in the working directory.
    (void)translator.load(QLocale::system().name(), QString(), QString(), QString());
    QCoreApplication::installTranslator(&translator);

    tell(QStringLiteral("Loading core..."));
    Core core(std::move(portNames));
    QFont messageFont(QStringLiteral("FreeSans")); // that of the pages
    messageFont.setPixelSize(14);
    QApplication::setFont(messageFont, "QMessageBox");

    tell(QStringLiteral("Starting models..."));
    QQmlApplicationEngine engine;
    loadMainWindow(engine, core);
    // A message that is still open does not keep a program without its window.
    const QObjectList roots = engine.rootObjects();
    for (QObject *root : roots) {
        if (const auto window = qobject_cast<QWindow *>(root))
            QObject::connect(window, &QWindow::visibleChanged, &application, &QCoreApplication::quit);
    }
    splash.close();
    const int code = QApplication::exec();
    // The pages go while the controller that they look at is still there.
    qDeleteAll(engine.rootObjects());
    return code;
}
