// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/reply.h"

Reply sortReply(QByteArray answer, const QByteArray &tag, Match match, const QByteArray &mark)
{
    answer.replace(tag, mark);
    const auto matches = [&](const char *end, bool whole) { return whole ? answer == end : answer.endsWith(end); };
    if (matches(EndOk, match == Match::Whole)) {
        answer.replace("\r\n\r\nOK\r\n", "").replace(EndOk, "");
        return {DeviceSuccessful, answer};
    }
    if (matches(EndBusy, match != Match::End))
        return {DeviceBusy, {}};
    if (matches(EndError, match != Match::End))
        return {DeviceError, {}};
    return {DeviceDisconnected, {}};
}
