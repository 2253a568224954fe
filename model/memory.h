// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Gives freed memory back to the system where the C library would keep it, for the small pieces that a large text was
/// taken apart into lie below the records that were made of it.
void returnFreedMemory();
