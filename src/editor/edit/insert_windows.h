// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/control_array.h"
#include "platform/core/base.h"
#include "text/insert_blocks.h"

#include <QDialog>

#include <QStringList>
#include <memory>

class QPushButton;

namespace zeph {

namespace Ui {
class Title;
}

/// Asks for the entries of a file's title. The caller writes it into the text.
class Title : public QDialog
{
    Q_OBJECT
public:
    explicit Title(const TitleFields &preset, QWidget *parent = nullptr);
    ~Title() override;

    TitleFields fields() const;

private:
    std::unique_ptr<Ui::Title> m_ui;
};

namespace Ui {
class Heading;
}

/// Asks for the text of a heading, typed or chosen from a list. The caller writes it into the text.
class Heading : public QDialog
{
    Q_OBJECT
public:
    explicit Heading(const QStringList &headings, QWidget *parent = nullptr);
    ~Heading() override;

    QString text() const;

private:
    void showText();

    std::unique_ptr<Ui::Heading> m_ui;
};

namespace Ui {
class SingleTextForm;
}

/// Asks for the text of a comment. The caller writes it into the text.
class SingleTextForm : public QDialog
{
    Q_OBJECT
public:
    explicit SingleTextForm(bool addCarriageReturn, QWidget *parent = nullptr);
    ~SingleTextForm() override;

    QString text() const;
    /// Whether a line end follows the comment.
    bool addsCarriageReturn() const;

private:
    std::unique_ptr<Ui::SingleTextForm> m_ui;
};

struct EditorSettings;

/// The floating palette of the slash modifiers; the captions are the words that it inserts. Emits
/// chosen(); InsertForms writes the word.
class SlashWindow : public QDialog
{
    Q_OBJECT
public:
    explicit SlashWindow(const EditorSettings &settings, QWidget *parent = nullptr);

    /// Updates the button that shows the delay of DLY.
    void applySettings();

Q_SIGNALS:
    /// A button was pressed; its index in insertWords.
    void chosen(int index);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void makeButtons();

    const EditorSettings &m_settings;
    ControlArray<QPushButton> m_buttons;
};

} // namespace zeph
