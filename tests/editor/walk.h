// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/editor/walk_model.h"
#include "tests/support/editor_world.h"
#include "tests/support/rich_texts.h"

#include <QAction>

#include <span>

namespace zeph::test {

constexpr DocumentKind bothKinds[] = { DocumentKind::Joystick, DocumentKind::Macro };

/// A pilot who does anything at all in the real Editor, and the model that says by the rules what
/// has to come of it. Chance decides by a seed, so that a walk can be repeated.
class Walk : public EditorWorld, public WalkPilot
{
public:
    explicit Walk(quint32 seed);

    BoxButton answer(const QString &title, const QList<BoxButton> &buttons) override;
    std::optional<QString> fileFor(std::optional<DocumentKind> kind) override;
    void closeBothTexts() override;

    /// The window gets the focus, as it does after every action.
    void comeBack();
    /// Fails the test where Editor and disk are not what the model says.
    void compare();

    int upTo(int most) { return chance.upTo(most); }
    bool oneIn(int count) { return upTo(count - 1) == 0; }
    QString word();
    /// The model's selected document, and the Editor's with its view.
    WalkDocument &document() { return model.document(); }
    Document &shown() { return editor->selected(); }
    TextControl &control() { return editor->view().control(shown().kind()); }
    bool coloursTyping();
    void writeFile(const QString &name, const QByteArray &bytes);

    // What pilots do in many actions. The model is told first, since it prepares the answers.
    void trigger(QStringView entry) { editor->action(entry)->trigger(); }
    /// By the menu or by the key with Ctrl.
    void run(QStringView entry, Qt::Key key);
    void sendKey(int key, const QString &text, Qt::KeyboardModifiers held = {});
    /// As WalkDocument::type() takes it.
    void typeKey(int key);
    void select(int anchor, int caret);
    void selectSome();

    RichTextMaker chance;
    int renames = 0;
    WalkModel model;

private:
    WalkDocument emptyDocument(DocumentKind kind);
    void closeNextTexts();
    void compareDocument(DocumentKind kind);
    void compareFiles();

    int m_textsToClose = 0;
};

struct WalkAction {
    const char *name;
    int weight;
    void (*run)(Walk &walk);
};

std::span<const WalkAction> typingActions();
std::span<const WalkAction> fileActions();
std::span<const WalkAction> lookActions();
std::span<const WalkAction> toolActions();
std::span<const WalkAction> findActions();

} // namespace zeph::test
