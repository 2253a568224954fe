// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/vffile.h"

#include "model/buildinfo.h"
#include "model/jsontext.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

QByteArray checksum(const QByteArray &line)
{
    return QCryptographicHash::hash(line, QCryptographicHash::Md5).toHex();
}

} // namespace

VfFile::VfFile(const QString &fileName)
    : QFile(fileName), m_path(QFileInfo(fileName).path()), m_baseName(QFileInfo(fileName).completeBaseName())
{
}

Experiment *VfFile::parseExperiment(QByteArray)
{
    return nullptr;
}

bool VfFile::isForeignProduct(const QString &) const
{
    return false;
}

QJsonObject VfFile::frame(const QByteArray &content)
{
    if (!m_framed.isNull() && m_framed.constData() == content.constData() && m_framed.size() == content.size())
        return m_document;
    m_framed.clear();

    const int end = content.indexOf('\n');
    if (end < 0 || content.indexOf('\n', end + 1) >= 0) {
        m_status = Malformed;
        return {};
    }
    const QByteArray line = QByteArray::fromRawData(content.constData(), end);
    if (checksum(line) != content.mid(end + 1)) {
        m_status = WrongChecksum;
        return {};
    }
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromBase64(line));
    if (!document.isObject()) {
        m_status = Malformed;
        return {};
    }
    m_framed = content;
    m_document = document.object();
    return m_document;
}

Experiment *VfFile::readExperiments(const QByteArray &content, Experiment *(*newExperiment)(), Members members)
{
    (void)frame(content);
    m_framed.clear();
    const QJsonObject root = std::exchange(m_document, {}); // a day of records is large: gone with the last use
    return m_status == NoError ? readBody(root, newExperiment, members) : nullptr;
}

Experiment *VfFile::readBody(const QJsonObject &root, Experiment *(*newExperiment)(), Members members)
{
    const QJsonValue body = root[QLatin1String("Body")];
    // an experiment may also stand alone under "Body", or in its place
    const QJsonArray bodies = body.isArray() ? body.toArray() : QJsonArray{body.isObject() ? body.toObject() : root};
    ExperimentChain chain;
    Experiment *last = nullptr;
    for (const QJsonValue &element : bodies) {
        Experiment *experiment = newExperiment();
        if (last)
            last->append(experiment); // behind the first, a file of thousands would be walked for each of them
        else
            chain.reset(experiment);
        last = experiment;
        experiment->fromJson(element.toObject());
        if (members == Members::First)
            break;
    }
    return chain.release();
}

// Nothing is written beside the file. An older one is not truncated but written over, so that its bytes, which are kept
// meanwhile, find their place again when the disk has no room for the new ones.
bool VfFile::save(const QByteArray &content)
{
    const bool existed = QFileInfo::exists(fileName()); // a link to no file is none
    if (!(existed && open(ReadWrite | Unbuffered)) && !open(WriteOnly | Unbuffered))
        return false;
    const bool kept = isReadable() && !isSequential();
    const QByteArray before = kept ? readAll() : QByteArray();
    const bool written = writeWhole(content);
    if (!written && kept)
        (void)writeWhole(before);
    close();
    if (!written && !existed) // through a link it is the file behind it that was made
        QFile::remove(QFileInfo(fileName()).canonicalFilePath());
    return written;
}

bool VfFile::writeWhole(const QByteArray &content)
{
    if (isSequential())
        return write(content) == content.size();
    return seek(0) && write(content) == content.size() && (size() == content.size() || resize(content.size()));
}

QByteArray VfFile::contentFor(const QJsonObject &device, const Experiment *first)
{
    JsonText text(QJsonDocument::Indented);
    text.beginObject();
    text.key("Body");
    text.beginArray();
    for (const Experiment *member = first; member; member = member->next()) {
        text.element();
        member->writeText(text);
    }
    text.endArray();
    text.key("Info");
    text.value(QJsonObject{{QStringLiteral("Sw"), BuildInfo::revision()}, {QStringLiteral("Device"), device}});
    text.endObject();
    const QByteArray line = text.document().toBase64();
    return line + '\n' + checksum(line);
}
