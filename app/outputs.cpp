// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/outputs.h"

#include "link/factories.h"
#include "model/filename.h"
#include "model/vffile.h"
#include "report/vfprinter.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <memory>

QString Outputs::ofExperiment(const QString &product, const QString &fileName) const
{
    const std::unique_ptr<VfFile> file(FactoryFile::createForSave(product, pathFromUrl(fileName)));
    return file ? file->fileName() : QString();
}

QStringList Outputs::ofReport(const QString &product, const QString &json) const
{
    const std::unique_ptr<VfPrinter> printer(FactoryPrinter::create(product));
    if (!printer)
        return {};
    printer->setParameters(json);
    return printer->outputFiles();
}

QStringList Outputs::existing(const QStringList &files, const QString &asked) const
{
    QStringList found;
    std::copy_if(files.cbegin(), files.cend(), std::back_inserter(found),
                 [known = pathFromUrl(asked)](const QString &file) { return file != known && QFileInfo(file).isFile(); });
    return found;
}

void Outputs::propose(const QString &name) const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        const auto dialog = qobject_cast<QFileDialog *>(widget);
        if (dialog && dialog->isVisible() && dialog->acceptMode() == QFileDialog::AcceptSave)
            dialog->selectFile(name);
    }
}
