// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembra/nembraresults.h"

int NembraResults::parseHeader2(const QByteArray &answer)
{
    Pieces header = pieces(answer, HeaderTag);
    if (header.size() == 9)
        header.removeLast(); // the exposure level counts only with the peak behind it
    return parseHeader<SoundLevelResults>(*this, fields(), 2, header, 8);
}
