// SPDX-License-Identifier: GPL-3.0-or-later
// Experiment files: what is read from them, what is refused, what is written; and the names that dialogs give them.

#include "link/device.h"
#include "link/factories.h"
#include "model/experiment.h"
#include "model/filename.h"
#include "model/jsontext.h"
#include "model/log.h"
#include "model/results.h"
#include "model/vffile.h"
#include "tests/model/fulldisk.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray stored(const QString &name)
{
    QFile file(MORVANE_TEST_DATA "/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is missing", qPrintable(name));
    return file.readAll();
}

QByteArray framed(const QByteArray &document)
{
    const QByteArray line = document.toBase64();
    return line + '\n' + QCryptographicHash::hash(line, QCryptographicHash::Md5).toHex();
}

QByteArray framed(const QJsonObject &document)
{
    return framed(QJsonDocument(document).toJson());
}

QJsonObject documentOf(const QByteArray &content)
{
    return QJsonDocument::fromJson(QByteArray::fromBase64(content.split('\n').first())).object();
}

/// A file opened as Core opens it.
struct Opened {
    Opened(const QByteArray &content, const QString &name) : file(FactoryFile::createForOpen(name))
    {
        device.reset(file->parseDevice(content));
        if (device)
            chain.reset(file->parseExperiment(content));
    }
    int members() const
    {
        int count = 0;
        for (const Experiment *member = chain.get(); member; member = member->next())
            ++count;
        return count;
    }
    std::unique_ptr<VfFile> file;
    std::unique_ptr<Device> device;
    ExperimentChain chain;
};

} // namespace

class TestModelFiles : public QObject
{
    Q_OBJECT

private slots:
    void storedExamples_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("members");
        QTest::newRow("one experiment") << "one.tvx" << 1;
        QTest::newRow("three, with 3, 0 and 1 expansions") << "three.tv4" << 3;
        QTest::newRow("three, with octaves, thirds and none") << "three.nbr" << 3;
        QTest::newRow("three, with bands of hand, of body and none") << "three.lmt" << 3;
        QTest::newRow("three, the second with records of their own length, the third overloaded") << "three.nbp" << 3;
        QTest::newRow("three, of one, two and eight quantities") << "three.zlk" << 3;
    }
    /// What was written once by another program is read whole, and written again byte by byte.
    void storedExamples()
    {
        QFETCH(QString, name);
        const QByteArray content = stored(name);
        const Opened opened(content, name);
        QCOMPARE(opened.file->status(), int(VfFile::NoError));
        QVERIFY(opened.device && opened.chain);
        QTEST(opened.members(), "members");
        QCOMPARE(opened.chain->toJson(), documentOf(content)["Body"].toArray()[0].toObject());
        const QByteArray written = VfFile::contentFor(opened.device->toJson(), opened.chain.get());
        QCOMPARE(QByteArray::fromBase64(written.split('\n')[0]), QByteArray::fromBase64(content.split('\n')[0]));
        QCOMPARE(written, content);
    }

    /// The text that is written record by record is what the tree of the whole would print, odd texts and empty lists
    /// included.
    void writesAsTheTreeWould_data()
    {
        QTest::addColumn<QString>("product");
        QTest::newRow("one unit") << "THALVEX 2";
        QTest::newRow("many units") << "THALVEX 4";
    }
    void writesAsTheTreeWould()
    {
        QFETCH(QString, product);
        QJsonArray logs;
        const QStringList odd{"", "24.1", "---", "\"", "\\", "a\nb\t\r\x01\x7f", "°C ç", QString::fromUcs4(U"\U0001F321"),
                              QString(QChar(0xD800)), "</script>"};
        for (const QString &text : odd) {
            const QJsonObject unit{{"wetTemperature", text}, {"globeTemperature", "1"}, {"IBUTGi", text},
                                   {"WBGTo", text}, {"waterLevel", -3}};
            QJsonObject log = unit;
            log["date"] = "21/03/05,14:30:00-12";
            log["enviromentalFactorsList"] = logs.size() % 2 ? QJsonArray{unit, unit} : QJsonArray();
            logs.append(log);
        }
        for (const QJsonArray &list : {logs, QJsonArray()}) {
            const std::unique_ptr<Experiment> experiment(FactoryExperiment::create(product));
            experiment->fromJson({{"logList", list}, {"expName", odd[5]}, {"index", "7"}});
            for (const auto format : {QJsonDocument::Compact, QJsonDocument::Indented}) {
                JsonText text(format);
                experiment->writeText(text);
                QCOMPARE(text.document(), QJsonDocument(experiment->toJson()).toJson(format));
            }
        }
    }

    void readsValues()
    {
        const Opened opened(stored("one.tvx"), "one.tvx");
        QCOMPARE(opened.device->sn(), QString("TX2-00417"));
        QCOMPARE(opened.device->manufactoryName(), QString("morvane"));
        QCOMPARE(opened.device->fw(), QString("1.08"));
        QCOMPARE(opened.device->calibration().certification, QString("CAL-2020/118"));
        QCOMPARE(opened.chain->index(), 7);
        QCOMPARE(opened.chain->size(), 3);
        QCOMPARE(opened.chain->logs()[1]->registerDate(), AtDateTime::fromAtString("21/03/05,14:31:00-12"));
        QCOMPARE(opened.chain->logs()[2]->property("IBUTGe").toString(), QString("---"));
        QCOMPARE(opened.chain->results()->property("globe_T_Min").toDouble(), -1.5);
        QCOMPARE(opened.chain->results()->stopReason(), QString("Memória cheia"));
    }

    /// A file cut anywhere: without the line feed it is malformed, behind it the checksum differs.
    void everyTruncationIsRefused()
    {
        const QByteArray content = stored("one.tvx");
        const int end = content.indexOf('\n');
        for (int length = 0; length < content.size(); ++length) {
            const Opened opened(content.left(length), "one.tvx");
            QVERIFY2(!opened.device && !opened.chain, qPrintable(QString::number(length)));
            QCOMPARE(opened.file->status(), int(length <= end ? VfFile::Malformed : VfFile::WrongChecksum));
        }
    }

    void everyFlippedBitIsRefused()
    {
        const QByteArray content = framed(QJsonObject{{"Info", QJsonObject{{"Device", QJsonObject{{"name", "THALVEX 2"}}}}},
                                                      {"Body", QJsonArray{QJsonObject{{"size", "0"}}}}});
        QVERIFY(Opened(content, "a.tvx").chain);
        const int end = content.indexOf('\n');
        for (int bit = 0; bit < content.size() * 8; ++bit) {
            QByteArray damaged = content;
            damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << (bit % 8)));
            const Opened opened(damaged, "a.tvx");
            QVERIFY2(!opened.device && !opened.chain, qPrintable(QString("bit %1").arg(bit)));
            const bool lines = bit / 8 == end || damaged.count('\n') != 1;
            QCOMPARE(opened.file->status(), int(lines ? VfFile::Malformed : VfFile::WrongChecksum));
        }
    }

    void frames_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("status");
        const QByteArray good = stored("one.tvx");
        const int end = good.indexOf('\n');
        QTest::newRow("as stored") << good << 0;
        QTest::newRow("a line feed more") << good + '\n' << 2;
        QTest::newRow("checksum in capitals") << good.left(end) + good.mid(end).toUpper() << 1;
        QTest::newRow("carriage return") << good.left(end) + '\r' + good.mid(end) << 1;
        QTest::newRow("blank behind the checksum") << good + ' ' << 1;
        QTest::newRow("empty") << QByteArray() << 2;
        QTest::newRow("line feed alone") << QByteArray("\n") << 1;
        QTest::newRow("no document") << framed(QByteArray()) << 2;
        QTest::newRow("no JSON") << framed(QByteArray("{\"Info\"")) << 2;
        QTest::newRow("an array") << framed(QByteArray("[{}]")) << 2;
        QTest::newRow("nobody's") << framed(QByteArray("{}")) << 2;
        QTest::newRow("another product") << stored("three.tv4") << 2;
        QJsonObject document = documentOf(good);
        for (const QJsonValue &revision : {QJsonValue("999"), QJsonValue(QJsonValue::Undefined)}) {
            QJsonObject info = document["Info"].toObject();
            info.insert("Sw", revision);
            document.insert("Info", info);
            QTest::newRow(qPrintable("software " + revision.toString())) << framed(document) << 0;
        }
        document.insert("Info", QJsonObject{{"Device", QJsonObject{{"name", "thalvex 2"}}}});
        QTest::newRow("product in small letters") << framed(document) << 2;
    }
    void frames()
    {
        QFETCH(QByteArray, content);
        const Opened opened(content, "one.tvx");
        QTEST(opened.file->status(), "status");
        QCOMPARE(opened.chain != nullptr, opened.file->status() == 0);
        opened.file->clearStatus();
        QCOMPARE(opened.file->status(), 0);
    }

    void bodies_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QJsonValue>("body");
        QTest::addColumn<int>("members");
        QTest::addColumn<int>("index"); // of the first
        for (const auto &[name, all] : {std::pair{"a.tvx", 1}, std::pair{"a.tv4", 3}}) {
            const auto row = [file = QString(name)](const char *what, const QJsonValue &body, int members, int index) {
                QTest::addRow("%s: %s", qPrintable(file), what) << file << body << members << index;
            };
            const QJsonObject seven{{"index", "7"}};
            const QJsonObject eight{{"index", "8"}};
            row("object", seven, 1, 7);
            row("array of one", QJsonArray{seven}, 1, 7);
            row("array of three", QJsonArray{eight, seven, seven}, all, 8);
            row("empty array", QJsonArray(), 0, 0);
            row("missing: stands in its place", QJsonValue(QJsonValue::Undefined), 1, 5);
            row("a number: stands in its place", 3, 1, 5);
            row("array of numbers", QJsonArray{1}, 1, 0);
        }
    }
    void bodies()
    {
        QFETCH(QString, name);
        QFETCH(QJsonValue, body);
        const QString product = name.endsWith(".tvx") ? "THALVEX 2" : "THALVEX 4";
        const QJsonObject info{{"Device", QJsonObject{{"name", product}}}};
        const Opened opened(framed(QJsonObject{{"Info", info}, {"Body", body}, {"index", "5"}}), name);
        QCOMPARE(opened.file->status(), 0);
        QVERIFY(opened.device);
        QTEST(opened.members(), "members");
        QTEST(opened.chain ? opened.chain->index() : 0, "index");
        for (Experiment *member = opened.chain.get(); member; member = member->next()) {
            QVERIFY(member->results());
            QVERIFY(!member->dateTime().isValid());
            QCOMPARE(member->toJson()["date"].toString(), QString("+00"));
        }
    }

    /// Counts and lists that no instrument has ever written neither hang nor grow.
    void absurdValuesAreHarmless()
    {
        QJsonObject document = documentOf(stored("three.tv4"));
        QJsonArray bodies = document["Body"].toArray();
        QJsonObject body = bodies[0].toObject();
        QJsonObject results = body["results"].toObject();
        results["numberOfExpansions"] = 1e9;
        results["wbgtList"] = QJsonArray{5, QJsonValue::Null, "x"};
        results["expansionBoardList"] = 5;
        body["results"] = results;
        body["size"] = "99999999999999";
        body["logList"] = QJsonArray{5, QJsonArray(), QJsonObject{{"enviromentalFactorsList", QJsonArray{1, 2}}}};
        bodies[0] = body;
        document["Body"] = bodies;
        const Opened opened(framed(document), "three.tv4");
        QCOMPARE(opened.members(), 3);
        QCOMPARE(opened.chain->logs().size(), 3);
        QCOMPARE(opened.chain->size(), 0);
        QCOMPARE(opened.chain->toJson()["results"].toObject()["numberOfExpansions"].toInt(), 3);
    }

    void saves()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("a.tvx");
        QFile old(name);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write(QByteArray(100000, 'x'));
        old.close();
        const QByteArray content = stored("one.tvx");
        const std::unique_ptr<VfFile> file(FactoryFile::createForSave("THALVEX 2", name));
        QCOMPARE(file->path(), folder.path());
        QCOMPARE(file->baseName(), QString("a"));
        QVERIFY(file->save(content));
        QVERIFY(old.open(QIODevice::ReadOnly));
        QCOMPARE(old.readAll(), content); // nothing of the longer file is left
        QVERIFY(QFile::exists("/dev/full"));
        QVERIFY(!VfFile("/dev/full").save(content));
        QVERIFY(QFile::exists("/dev/full"));
        QVERIFY(!VfFile(folder.path()).save(content));
        QVERIFY(!VfFile(folder.filePath("no/such/folder.tvx")).save(content));
    }

    void keepsWhatAFullDiskWouldTake_data()
    {
        QTest::addColumn<QString>("target"); // of the link under whose name is saved
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("an older file") << "" << QByteArray("the older measurement");
        QTest::newRow("an older file behind a link") << "elsewhere.tvx" << QByteArray("the older measurement");
        QTest::newRow("an older file that is longer") << "" << QByteArray(900, 'x');
        QTest::newRow("no file") << "" << QByteArray();
        QTest::newRow("a link to no file") << "elsewhere.tvx" << QByteArray();
    }
    void keepsWhatAFullDiskWouldTake()
    {
        QFETCH(QString, target);
        QFETCH(QByteArray, before);
        const QTemporaryDir folder;
        const QString name = folder.filePath("a.tvx");
        const QString path = target.isEmpty() ? name : folder.filePath(target);
        QVERIFY(target.isEmpty() || QFile::link(path, name));
        QFile file(path);
        if (!before.isEmpty()) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(before);
            file.close();
        }
        const QStringList there = QDir(folder.path()).entryList(QDir::Files | QDir::System);
        {
            const FullDisk full(1000);
            QVERIFY(!VfFile(name).save(QByteArray(5000, 'y')));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::System), there);
        QCOMPARE(file.exists(), !before.isEmpty());
        if (file.exists()) {
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), before);
        }
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("path");
        const std::pair<const char *, const char *> rows[] = {
            {"file:///home/u/a b.tvx", "/home/u/a b.tvx"},
            {"file:///home/u/a%20b.tvx", "/home/u/a b.tvx"},
            {"file:///home/u/Fundição.tvx", "/home/u/Fundição.tvx"},
            {"file:///home/u/Fundi%C3%A7%C3%A3o.tvx", "/home/u/Fundição.tvx"},
            {"file:///home/u/n%231.tvx", "/home/u/n#1.tvx"},
            {"file:///home/u/n#1.tvx", "/home/u/n#1.tvx"},
            {"file:///home/u/100%25.tvx", "/home/u/100%.tvx"},
            {"file:///home/u/100%2525.tvx", "/home/u/100%25.tvx"},
            {"file:///home/u/1+1.tvx", "/home/u/1+1.tvx"},
            {"file:///home/u/why%3F.tvx", "/home/u/why?.tvx"},
            {"file:///home/u/why?.tvx", "/home/u/why?.tvx"},
            {"file:///C:/a/b.tvx", "C:/a/b.tvx"},
            {"file:///C:/a/b%20ç.tvx", "C:/a/b ç.tvx"},
            {"file:///a.tvx", "/a.tvx"},
            {"/home/u/100%25 #1?.tvx", "/home/u/100%25 #1?.tvx"},
            {"C:/a/b.tvx", "C:/a/b.tvx"},
            {"", ""},
        };
        for (const auto &[url, path] : rows)
            QTest::newRow(*url ? url : "nothing") << url << path;
    }
    void fileNames()
    {
        QFETCH(QString, url);
        QTEST(pathFromUrl(url), "path");
    }
};

Q_DECLARE_METATYPE(QJsonValue)

QTEST_GUILESS_MAIN(TestModelFiles)
#include "tst_model_files.moc"
