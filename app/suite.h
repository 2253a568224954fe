// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/portnames.h"

class Core;
class QQmlApplicationEngine;

/// Loads the window with \a core behind it. A download that is running when the window closes ends at once instead of
/// holding the process.
void loadMainWindow(QQmlApplicationEngine &engine, Core &core);

/// Runs the program from the splash screen to the end of the event loop. \a portNames names the ports that a scan looks
/// at. Gives the process's exit code.
int runSuite(int argc, char **argv, PortNames portNames);
