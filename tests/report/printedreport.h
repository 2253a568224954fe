// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/experiment.h"
#include "report/vfprinter.h"

#include <QImage>
#include <QJsonObject>
#include <QRectF>
#include <QStringList>
#include <QTemporaryDir>

/// A report printed to a folder of its own, and what a reader finds in it.
class PrintedReport
{
public:
    struct Word {
        QString text;
        QRectF box; ///< in pixels of the report, from the corner of the margins
    };

    /// Prints \a first with the window's \a choices; "fileName" is added when it is missing.
    PrintedReport(VfPrinter *printer, Experiment *first, QJsonObject choices);

    int result() const { return m_result; }
    QString path() const { return m_path; }
    int pages() const;
    /// Text of page \a page (from 1), or of all pages (0), as it stands on the page, or "-raw": as it was drawn.
    QString text(int page = 0, const QString &order = QStringLiteral("-layout")) const;
    /// What the document says of itself under \a key.
    QString info(const QString &key) const;
    /// "400 x 300 lossless" for each picture on each page.
    QStringList pictures() const;
    QVector<Word> words(int page) const;
    /// The first word \a text of page \a page; a null box when there is none.
    QRectF box(const QString &text, int page = 1) const;
    /// What is wrong with page \a page: words on one another or beside the page, or a foot that tells another number.
    QStringList faults(int page) const;
    /// Ends and control points of the smooth lines of page 1, each line of more than one piece.
    QVector<QVector<QPointF>> curves() const;
    /// Page \a page in shades of grey.
    QImage image(int page, int dpi) const;
    /// Fonts that are used, each with whether it is embedded: "FreeSans yes".
    QStringList fonts() const;
    QByteArray csv() const;

private:
    QTemporaryDir m_folder;
    QString m_path;
    int m_result = 0;
};

/// The choices {\a key: true, ...}.
QJsonObject switchedOn(const QStringList &keys);

/// Words that lie on one another.
QStringList overlaps(const QVector<PrintedReport::Word> &words);

/// The largest mean difference (0 to 255) of a tile of 16 by 16 pixels; 255 for pictures of different sizes.
double largestDifference(const QImage &a, const QImage &b);

/// The page's largest difference to the picture \a name in the tests' data. One that is too large leaves the page
/// beside it in the folder for temporary files, for a look.
double differenceToKept(const QImage &page, const QString &name);
