// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <memory>

class QPrinter;
class QWidget;

namespace zeph {

enum class PageOrientation { Portrait, Landscape };

/// The system's printers, and the one setup that all printing uses. A printer that its tool cannot
/// reach is told by the tool.
class Printers
{
public:
    virtual ~Printers() = default;

    /// How many printers the system lists.
    virtual int count() const = 0;
    virtual PageOrientation orientation() = 0;
    virtual void setOrientation(PageOrientation orientation) = 0;
    /// Lets the user choose printer, paper and orientation, over that window.
    virtual void setup(QWidget *parent) = 0;
    /// The device of that setup; owned by this. It can also say how large a page is where there is
    /// no printer.
    virtual QPrinter &printer() = 0;
};

/// The real ones.
class SystemPrinters : public Printers
{
public:
    SystemPrinters();
    ~SystemPrinters() override;

    int count() const override;
    PageOrientation orientation() override;
    void setOrientation(PageOrientation orientation) override;
    void setup(QWidget *parent) override;
    QPrinter &printer() override;

private:
    // Made at first need: asking a print server takes its time.
    std::unique_ptr<QPrinter> m_printer;
};

/// Gives a new device the margins of everything that is printed.
void setPrintMargins(QPrinter &printer);

} // namespace zeph
