// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/insert_windows.h"
#include "editor/macros/macro_features.h"
#include "editor/macros/macrorenameform.h"
#include "tests/editor/walk.h"
#include "text/alignment.h"
#include "text/insert_blocks.h"
#include "text/text_lines.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

namespace zeph::test {

namespace {

void changeRems(Walk &walk, bool puts)
{
    if (walk.oneIn(2)) {
        walk.selectSome();
    }
    const LineRange range = touchedLines(walk.document().text(), walk.document().selStart(),
                                         walk.document().selLength());
    const auto start = int(range.start);
    WalkText after;
    bool isOther = false;
    qsizetype at = range.start;
    for (const LineChange &line :
         changeLines(QStringView(walk.document().text()).mid(range.start, range.length),
                     puts ? commentedOut : commentedIn)) {
        const qsizetype length = line.text.size() + (line.changed ? (puts ? -4 : 4) : 0);
        const WalkText changed = puts ? walk.document().painted(line.text, remPasses())
            : line.changed            ? walk.document().painted(line.text, typingPasses())
                                      : walk.document().now().mid(at, length);
        after.replace(after.text.size(), 0, changed);
        isOther = isOther || line.changed;
        at += length;
    }
    if (isOther) {
        walk.document().begin();
        walk.document().replace(range.start, range.length, after);
        walk.document().put(start, start);
        walk.document().commit();
    } else {
        walk.document().put(start, start);
    }
    walk.trigger(puts ? u"mnuBlockREM" : u"mnuBlockRemoveREM");
}

void putRems(Walk &walk)
{
    changeRems(walk, true);
}

void takeRems(Walk &walk)
{
    changeRems(walk, false);
}

void align(Walk &walk)
{
    WalkDocument &joystick = walk.model.of(DocumentKind::Joystick).document;
    auto &options = walk.settings.of<EditorSettings>();
    const QString text = joystick.text();
    if (!text.isEmpty()) {
        options.IndentAsWell = walk.oneIn(3);
        const QString aligned = AlignSlashes(text, { options.IndentAsWell, options.IndentSpaces });
        const auto anchor = int(placeAfterAligning(text, aligned, joystick.anchor()));
        const auto caret = int(placeAfterAligning(text, aligned, joystick.caret()));
        if (aligned != text) {
            joystick.begin();
            joystick.replace(0, text.size(), WalkText::of(aligned, joystick.plainLook()));
            joystick.put(anchor, caret);
            joystick.commit();
        }
        const DocumentKind before = walk.document().kind();
        walk.model.colour(DocumentKind::Joystick);
        joystick.put(anchor, caret);
        walk.model.select(before);
    }
    walk.trigger(u"mnuAlignSlash");
}

void insertWord(Walk &walk)
{
    const int at = walk.document().selStart();
    const int index = walk.upTo(int(language::insertWords.size()) - 1);
    const language::Word &word = language::insertWords[size_t(index)];
    QString text = insertText(word, walk.settings.of<EditorSettings>().DefaultDLYvalue);
    if (at < walk.document().text().size() && walk.document().text()[at] != u' ') {
        text += u' ';
    }
    WalkLook look = walk.document().plainLook();
    look.format.colour = word.is(language::SlashRole) ? walk.document().scheme().slash
                                                      : walk.document().scheme().raw;
    walk.document().begin();
    walk.document().insert(WalkText::of(text, look));
    walk.document().commit();
    if (walk.oneIn(2)) {
        walk.trigger(u"mnuSlashArray_"_s + QString::number(index));
        return;
    }
    walk.trigger(u"mnuSlashWindow");
    auto *palette = walk.editor->findChild<SlashWindow *>();
    palette->findChild<QPushButton *>(u"Command1_"_s + QString::number(index))->click();
    palette->close();
}

/// Lines in the comments' colour, on lines of their own.
void insertLines(Walk &walk, const QStringList &lines)
{
    WalkLook rem = walk.document().plainLook();
    rem.format.colour = walk.document().scheme().rem;
    const WalkText end = WalkText::of(u"\n"_s, walk.document().plainLook());
    const int at = walk.document().selStart();
    WalkText all = at > 0 && walk.document().text()[at - 1] != u'\n' ? end : WalkText();
    for (const QString &line : lines) {
        all.replace(all.text.size(), 0, WalkText::of(line, rem));
        all.replace(all.text.size(), 0, end);
    }
    walk.document().begin();
    walk.document().insert(all);
    walk.document().commit();
}

QDialog *open(Walk &walk, QStringView entry, const QString &form)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    walk.trigger(entry);
    return walk.editor->findChild<QDialog *>(form);
}

void insertHeading(Walk &walk)
{
    insertLines(walk, headingBlock(u"Guns"_s));
    QDialog *form = open(walk, u"mnuInsertHeading", u"Heading"_s);
    form->findChild<QComboBox *>(u"Combo1"_s)->setEditText(u"Guns"_s);
    form->findChild<QPushButton *>(u"cmdOK"_s)->click();
}

void insertTitle(Walk &walk)
{
    insertLines(walk,
                titleBlock({ .fileName = walk.model.selected().name(),
                             .person = u"Jo"_s,
                             .lastModified = u"long ago"_s,
                             .controllers = u"Thrustmaster Cougar"_s }));
    QDialog *form = open(walk, u"mnuInsertTitle", u"Title"_s);
    form->findChild<QLineEdit *>(u"Text3"_s)->setText(u"Jo"_s);
    form->findChild<QLineEdit *>(u"Text4"_s)->setText(u"long ago"_s);
    form->findChild<QPushButton *>(u"cmdOK"_s)->click();
}

void insertRem(Walk &walk)
{
    const bool endsLine = walk.oneIn(2);
    const int at = walk.document().selStart();
    WalkLook rem = walk.document().plainLook();
    rem.format.colour = walk.document().scheme().rem;
    QString text = remStatement(u"note"_s);
    if (at > 0 && !walk.document().text()[at - 1].isSpace()) {
        text.prepend(u' ');
    }
    walk.document().begin();
    walk.document().insert(WalkText::of(text, rem));
    if (endsLine) {
        walk.document().insert(WalkText::of(u"\n"_s, walk.document().plainLook()));
    }
    walk.document().commit();
    QDialog *form = open(walk, u"mnuInsertRemStatement", u"SingleTextForm"_s);
    form->findChild<QLineEdit *>(u"RichTextBox1"_s)->setText(u"note"_s);
    form->findChild<QCheckBox *>(u"CheckAddCR"_s)->setChecked(endsLine);
    form->findChild<QPushButton *>(u"cmdOK"_s)->click();
}

void renameMacro(Walk &walk)
{
    const QStringList names = walk.editor->macros().list().model().allNames();
    const int index = walk.upTo(qMax(0, int(names.size()) - 1));
    const QString name = u"N"_s + QString::number(++walk.renames);
    const bool saves = walk.oneIn(3);
    // A line that begins with "=" has a macro without a name.
    const bool isPossible = !names.value(index).isEmpty();
    if (isPossible) {
        walk.model.rename(names[index], name);
        if (saves) {
            walk.model.saveBoth();
            walk.model.updateMacros();
        }
    }
    QTimer::singleShot(0, walk.editor.get(), [&] {
        auto *form = qobject_cast<MacroRenameForm *>(QApplication::activeModalWidget());
        if (isPossible) {
            form->findChild<QListWidget *>(u"List1"_s)->setCurrentRow(index);
            form->findChild<QLineEdit *>(u"Text1"_s)->setText(name);
            form->findChild<QCheckBox *>(u"CheckAutoSave"_s)->setChecked(saves);
            form->findChild<QPushButton *>(u"cmdOK"_s)->click();
        }
        if (form->isVisible()) {
            form->reject();
        }
    });
    walk.trigger(u"mnuRenameMacro");
}

/// The macro list's double click: the name with a blank on each side.
void insertMacro(Walk &walk)
{
    MacroList &list = walk.editor->macros().list();
    const QStringList names = list.model().allNames();
    if (names.isEmpty()) {
        return;
    }
    list.SelectedMacro = names[walk.upTo(int(names.size()) - 1)];
    if (list.SelectedMacro.isEmpty()) {
        return;
    }
    const int at = walk.document().selStart();
    const bool needsBlank =
        walk.document().selLength() == 0 && at > 0 && walk.document().text()[at - 1] != u' ';
    walk.document().begin();
    walk.document().insert(
        WalkText::of((needsBlank ? u" "_s : QString()) + list.SelectedMacro + u' ',
                     walk.document().plainLook()));
    walk.document().commit();
    list.List1_DblClick();
}

constexpr WalkAction allTools[] = {
    { "comment out", 3, putRems },
    { "comment in", 3, takeRems },
    { "align", 2, align },
    { "insert a word", 4, insertWord },
    { "insert a macro", 2, insertMacro },
    { "insert a heading", 1, insertHeading },
    { "insert a title", 1, insertTitle },
    { "insert Rem", 2, insertRem },
    { "rename a macro", 2, renameMacro },
};

} // namespace

std::span<const WalkAction> toolActions()
{
    return allTools;
}

} // namespace zeph::test
