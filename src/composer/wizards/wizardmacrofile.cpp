// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/wizardmacrofile.h"

#include "composer/wizards/heading_list.h"
#include "composer/wizards/lesson_frame.h"
#include "composer/wizards/macrofields.h"

#include <QHBoxLayout>

namespace zeph {

namespace {

/// Pages with controls of their own, counted from 0.
enum Pages { TumboPage = 3, HeadingsPage = 6, MacrosPage = 8 };

// clang-format off
constexpr WizardButton buttons[] = {
    { 1, 0, u"Ne&w macro file please", u"Puts a fresh macro file into the Editor; asks first if the present one isn't saved", u"mnuFileNewMacro" },
    { 1, 1, u"&Save macro file", u"Asks for a name and a place, and saves the file there", u"mnuFileSave", true },
    { 2, 2, u"Inse&rt a title please", u"Asks what the title should say, and writes it at the caret", u"mnuInsertTitle", true },
    { 5, 3, u"Insert &heading", u"Asks for a heading of your own, and writes it at the caret", u"mnuInsertHeading", true },
    { 11, 4, u"&Save macro file", u"Saves the macro file", u"mnuFileSave", true },
    { 12, 5, u"&Transfer these macros I created into the Editor's macro list", u"Reads the macro list from the saved macro file", u"mnuEditUpdateMacros", true },
};
// clang-format on

constexpr int headingsHeight = 150;

} // namespace

WizardMacroFile::WizardMacroFile(const ComposerParts &parts, QWidget *parent)
    : WizardWindow(parts, macroFileLesson, u"MacroWizFrame"_s, parent)
{
    addButtons(buttons);
    addTumbo();
    m_headings = new HeadingList(parts, &frame(HeadingsPage));
    m_headings->setFixedHeight(headingsHeight);
    frame(HeadingsPage).addWork(m_headings);
    m_macro = new MacroFields(parts, u"Text1"_s, &frame(MacrosPage));
    frame(MacrosPage).addWork(m_macro);
    connect(m_macro, &MacroFields::tumboWanted, this, &WizardMacroFile::tumboWanted);
}

void WizardMacroFile::addTumbo()
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    auto *button = new QPushButton(u"Show me T&umbo"_s, &frame(TumboPage));
    button->setObjectName(u"CommandTumbo"_s);
    button->setToolTip(u"Opens Tumbo beside this window"_s);
    connect(button, &QPushButton::clicked, this, &WizardMacroFile::tumboWanted);
    row->addWidget(button);
    frame(TumboPage).addWork(row);
}

void WizardMacroFile::setKeys(const QString &keys)
{
    m_macro->setKeys(keys);
}

QWidget *WizardMacroFile::firstControl(int page) const
{
    switch (page) {
    case HeadingsPage:
        return m_headings;
    case MacrosPage:
        return &m_macro->nameField();
    default:
        return nullptr;
    }
}

QPushButton *WizardMacroFile::defaultButton(int page) const
{
    return page == MacrosPage ? &m_macro->insertButton() : WizardWindow::defaultButton(page);
}

} // namespace zeph
