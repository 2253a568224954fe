// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the tests written in QML. The pages find "core", "root" and the fonts' names as they do in the suite's window, and
// the tests what goes from a page to the controller, as texts by the names of their files.
#include "app/fonts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

/// Puts the stand-ins beside this file where the pages look for the real ones.
class StandIns : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        loadApplicationFonts();
        QQmlContext *context = engine->rootContext();
        context->setContextProperty(QStringLiteral("fontSans"), QVariantMap{{QStringLiteral("name"), QStringLiteral("FreeSans")}});
        context->setContextProperty(QStringLiteral("fontMorvane"), QVariantMap{{QStringLiteral("name"), QStringLiteral("FreeSans")}});
        context->setContextProperty(QStringLiteral("sentTexts"), sentTexts());
        stand(engine, QStringLiteral("core"), QStringLiteral("StandInCore.qml"));
        stand(engine, QStringLiteral("root"), QStringLiteral("StandInRoot.qml"));
    }

private:
    static QVariantMap sentTexts()
    {
        QVariantMap texts;
        const QDir folder(QStringLiteral(QUICK_TEST_SOURCE_DIR "/../data"), QStringLiteral("*.json"));
        const QStringList names = folder.entryList();
        for (const QString &name : names) {
            QFile file(folder.filePath(name));
            texts.insert(name, file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString());
        }
        return texts;
    }

    void stand(QQmlEngine *engine, const QString &name, const QString &file)
    {
        const QString path = QDir(QStringLiteral(QUICK_TEST_SOURCE_DIR)).filePath(file);
        QQmlComponent component(engine, QUrl::fromLocalFile(path));
        QObject *object = component.create();
        if (!object)
            qFatal("%s", qPrintable(component.errorString()));
        object->setParent(engine);
        engine->rootContext()->setContextProperty(name, object);
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StandIns standIns;
    return quick_test_main_with_setup(argc, argv, "qml", nullptr, &standIns);
}

#include "main.moc"
