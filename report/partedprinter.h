// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/vfprinter.h"

#include <vector>

class VfNormalTable;

/// A report that begins with its front and goes on in parts, each with pages of its own and perhaps a log table behind
/// them. What does not fit on a page moves to a next one; the total is counted by what draws.
class PartedPrinter : public VfPrinter
{
    Q_OBJECT

public:
    [[nodiscard]] int printReport() override;
    /// Counts by drawing all of the report on pages that go nowhere, but for the log tables, which know their number.
    void calculateTotalPages(bool withLogTable) override;

protected:
    struct Part {
        std::vector<Content> pages;            ///< what begins a page each
        std::function<VfTable *()> logTable;   ///< null without one
    };
    /// Draws the front, beginning with drawIdentification().
    virtual void drawFront() = 0;
    virtual std::vector<Part> parts() = 0;
    /// Files beside the report.
    virtual void writeFurtherFiles() {}

    /// Draws \a block, on the next page when it does not fit on this one.
    void keepTogether(const Content &block);
    /// A section that moves to the next page when it does not fit on this one.
    void wholeSection(const QString &title, const Content &content);
    /// A section with as many rows of \a table as fit, and on the next pages more of them.
    void tableSection(const QString &title, VfNormalTable &table);

private:
    void drawAll(bool withLogTable);
};
