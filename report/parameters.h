// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

#include <variant>
#include <vector>

class QJsonObject;

/// A choice of the report window: its key in the window's JSON text and the member that keeps it.
struct ReportParameter {
    const char *key;
    std::variant<bool *, QString *, QVector<int> *> member; ///< a list: whole numbers from 0 on, ascending, each once
};

using ReportParameters = std::vector<ReportParameter>;

/// Fills the members from \a object; a key that is missing reads as empty or false.
void readParameters(const ReportParameters &parameters, const QJsonObject &object);
