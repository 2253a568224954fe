// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"

#include <QFile>
#include <QJsonObject>

class Device;

/// An experiment file: Base64 of a JSON document, a line feed, and the MD5 of the Base64 text in hexadecimal.
/// The document holds "Info" (the software and the instrument) and "Body" (one object per experiment).
class VfFile : public QFile
{
    Q_OBJECT

public:
    enum Status { NoError = 0, WrongChecksum = 1, Malformed = 2 };

    explicit VfFile(const QString &fileName);

    /// Folder of the file.
    QString path() const { return m_path; }
    /// Name without folder and ending.
    QString baseName() const { return m_baseName; }
    int status() const { return m_status; }
    void clearStatus() { m_status = NoError; }

    /// The first experiment of the chain that \a content holds, or null: with a status when the content is refused,
    /// without one when it holds no experiment. The caller owns the chain.
    virtual Experiment *parseExperiment(QByteArray content);
    /// Whether \a name is not the product of this kind of file.
    virtual bool isForeignProduct(const QString &name) const;

    /// The instrument that \a content tells of, with no port; null with a status when the content is refused.
    /// The caller owns it.
    Device *parseDevice(QByteArray content);

    /// Writes \a content to the file: false when not all of it could be written. What stood there before stands there
    /// again then, and a file that was not there is not there.
    [[nodiscard]] bool save(const QByteArray &content);

    /// The bytes of a file with \a device (Device::toJson) and the chain that begins at \a first.
    static QByteArray contentFor(const QJsonObject &device, const Experiment *first);

    enum class Members { First, All };

protected:
    /// Reads the experiments in the "Body" of \a content into objects of \a newExperiment: the first, or all of them
    /// linked in order.
    Experiment *readExperiments(const QByteArray &content, Experiment *(*newExperiment)(), Members members);

private:
    static Experiment *readBody(const QJsonObject &root, Experiment *(*newExperiment)(), Members members);
    bool writeWhole(const QByteArray &content);
    /// The JSON object in the frame of \a content; sets the status and gives an empty one when it is refused.
    QJsonObject frame(const QByteArray &content);

    QString m_path;
    QString m_baseName;
    int m_status = NoError;
    QByteArray m_framed;    ///< content that m_document was read from: device and experiments share one reading
    QJsonObject m_document;
};

/// The file of a family whose experiments are of type \a E.
template <class E, VfFile::Members members> class FileOf : public VfFile
{
public:
    FileOf(const QString &fileName, const QString &product) : VfFile(fileName), m_product(product) {}

    Experiment *parseExperiment(QByteArray content) override
    {
        return readExperiments(content, []() -> Experiment * { return new E; }, members);
    }
    bool isForeignProduct(const QString &name) const override { return name != m_product; }

private:
    QString m_product;
};
