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
    const QJsonObject root = frame(content);
    m_framed.clear(); // the text of a day of records is large: let go of it with the last use
    m_document = {};
    if (m_status != NoError)
        return nullptr;

    const QJsonValue body = root[QLatin1String("Body")];
    // an experiment may also stand alone under "Body", or in its place
    QJsonArray bodies = body.isArray() ? body.toArray() : QJsonArray{body.isObject() ? body.toObject() : root};
    ExperimentChain chain;
    for (const QJsonValue &element : qAsConst(bodies)) {
        Experiment *experiment = newExperiment();
        if (chain)
            chain->append(experiment);
        else
            chain.reset(experiment);
        experiment->fromJson(element.toObject());
        if (members == Members::First)
            break;
    }
    return chain.release();
}

bool VfFile::save(const QByteArray &content)
{
    if (!open(QIODevice::WriteOnly))
        return false;
    const bool written = write(content) == content.size() && flush();
    close();
    if (!written && QFileInfo(*this).isFile())
        remove();
    return written;
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
