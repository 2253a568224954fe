// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suite.h"

#include "model/buildinfo.h"
#include "app/core.h"
#include "app/fonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPixmap>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QSplashScreen>
#include <QTranslator>
#include <QVBoxLayout>

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
    // A download that is running when the window closes ends at once instead of holding the process.
    QObject::connect(&application, &QGuiApplication::lastWindowClosed, &core, &Core::closePorts);

    tell(QStringLiteral("Starting models..."));
    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("core"), &core);
    engine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    splash.close();
    const int code = QApplication::exec();
    // The pages go while the controller that they look at is still there.
    qDeleteAll(engine.rootObjects());
    return code;
}
