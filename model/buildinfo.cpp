// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/buildinfo.h"

QString BuildInfo::version()
{
    return QStringLiteral("1.0");
}

QString BuildInfo::builtDate()
{
    return QStringLiteral(__DATE__ " - " __TIME__);
}

QString BuildInfo::builtYear()
{
    return QStringLiteral("2019");
}

QString BuildInfo::revision()
{
    return QStringLiteral("716");
}
