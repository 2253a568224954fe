// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

/// What the pages have to know of files before these are written: their full names and which exist already. The names
/// are told by those who write, so that a question speaks of the file that would be lost.
class Outputs : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The file that an experiment of \a product goes to when \a fileName (a URL or a path) is picked; "" for a product
    /// without files.
    Q_INVOKABLE QString ofExperiment(const QString &product, const QString &fileName) const;
    /// The files of the report of \a product that \a json, the text for Core::generateReport, asks for.
    Q_INVOKABLE QStringList ofReport(const QString &product, const QString &json) const;
    /// Those of \a files that exist, but for \a asked (a URL or a path): of that the dialog has asked.
    Q_INVOKABLE QStringList existing(const QStringList &files, const QString &asked) const;
    /// Puts \a name into the dialog for saving that is open. A dialog of the system's own takes no proposal.
    Q_INVOKABLE void propose(const QString &name) const;
};
