// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/games/gamefields.h"

#include "language/file_kinds.h"
#include "platform/core/profile_list.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "ui_entergamename.h"
#include "ui_gamefields.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace zeph {

namespace {

/// How the example begins.
constexpr QStringView sample = u"eg";
/// The example in the directory's field.
constexpr QStringView wholeSample = u"eg C:\\Games\\Falcon4";

const QString commandHelp =
    u"This is what I run to start your game: the full path of its program and, after a "
    "blank, any switches that the game understands, as in\n\nC:\\Games\\Falcon4\\falcon4.exe "
    "-g4\n\n"
    "The Browse button finds the program for you; type the switches after it. If the path has "
    "blanks in it, you may put it in double quotes.\n\nIt can be a web address too: anything that "
    "begins with www. or http opens in your browser."_s;

const QString folderHelp =
    u"Most games look for their own files in the directory that they're started from, so this "
    "should be the folder that the game's program is in. Some games have their program in a "
    "folder of its own and want to be started from the one above it: if a game complains about "
    "missing files, look at the properties of the shortcut that its installation made, and copy "
    "the \"Start in\" entry here.\n\nWhen you browse for the game's file, I fill this in for you."_s;

} // namespace

GameFields::GameFields(const Paths &paths, Dialogs &dialogs, QWidget *parent)
    : QWidget(parent), m_paths(paths), m_dialogs(dialogs), m_ui(std::make_unique<Ui::GameFields>())
{
    m_ui->setupUi(this);
    m_ui->GameDIRPath->setPlaceholderText(wholeSample.toString());
    connectFields();
    connectButtons();
    update();
}

GameFields::~GameFields() = default;

QList<QLineEdit *> GameFields::lines() const
{
    return { m_ui->GameName, m_ui->GamePath, m_ui->GameDIRPath, m_ui->GameJF };
}

void GameFields::connectFields()
{
    for (QLineEdit *field : lines()) {
        connect(field, &QLineEdit::textChanged, this, &GameFields::changed);
        connect(field, &QLineEdit::editingFinished, this, &GameFields::left);
    }
    // Not a group of radio buttons, since both can be off.
    const auto exclude = [this](QCheckBox *ticked, QCheckBox *other) {
        connect(ticked, &QCheckBox::toggled, this, [this, other](bool on) {
            if (m_isShowing) {
                return;
            }
            if (on) {
                const QSignalBlocker quiet(other);
                other->setChecked(false);
            }
            chooseMode();
        });
    };
    exclude(m_ui->CheckWindowsMode, m_ui->CheckDefaultFile);
    exclude(m_ui->CheckDefaultFile, m_ui->CheckWindowsMode);
}

void GameFields::connectButtons()
{
    connect(m_ui->cmdBrowsePath, &QPushButton::clicked, this, &GameFields::browseCommand);
    connect(m_ui->cmdBrowseDIR, &QPushButton::clicked, this, &GameFields::browseFolder);
    connect(m_ui->cmdBrowseJF, &QPushButton::clicked, this, &GameFields::browseJoystickFile);
    connect(m_ui->cmdHelpPath, &QPushButton::clicked, this,
            [this] { m_dialogs.tell(u"Important information ... "_s, commandHelp); });
    connect(m_ui->cmdHelpDIR, &QPushButton::clicked, this,
            [this] { m_dialogs.tell(u"About the working directory ... "_s, folderHelp); });
}

void GameFields::browseCommand()
{
    const auto path = m_dialogs.openFile({ u"Select your game's file"_s,
                                           u"Executables (*.exe)|*.exe|All files (*.*)|*.*"_s,
                                           {},
                                           {},
                                           {} });
    if (!path) {
        return;
    }
    m_ui->GamePath->setText(*path);
    const QString directory = m_ui->GameDIRPath->text();
    if (directory.isEmpty() || directory.startsWith(sample)) {
        const QString folder = folderOf(*path);
        m_ui->GameDIRPath->setText(folder.size() > 1 ? folder.chopped(1) : folder);
    }
}

void GameFields::browseFolder()
{
    const QString now = m_ui->GameDIRPath->text();
    if (const auto folder = m_dialogs.chooseFolder(u"Select your game's working directory"_s,
                                                   now.startsWith(sample) ? QString() : now)) {
        m_ui->GameDIRPath->setText(*folder);
    }
}

void GameFields::browseJoystickFile()
{
    if (const auto path = m_dialogs.openFile({ u"Select the joystick file for your game"_s,
                                               fileFilter(DocumentKind::Joystick),
                                               extensionOf(DocumentKind::Joystick),
                                               m_paths.filesFolder(),
                                               {} })) {
        m_ui->GameJF->setText(*path);
    }
}

void GameFields::chooseMode()
{
    m_mode = qint16(m_ui->CheckWindowsMode->isChecked()       ? GameMode::Windows
                        : m_ui->CheckDefaultFile->isChecked() ? GameMode::DownloadDefault
                                                              : GameMode::Download);
    changed();
}

void GameFields::changed()
{
    if (!m_isShowing) {
        update();
        Q_EMIT edited();
    }
}

void GameFields::update()
{
    const bool ownFile =
        !m_ui->CheckWindowsMode->isChecked() && !m_ui->CheckDefaultFile->isChecked();
    m_ui->GameJF->setEnabled(ownFile);
    m_ui->cmdBrowseJF->setEnabled(ownFile);
    const bool known =
        m_mode >= qint16(GameMode::Download) && m_mode <= qint16(GameMode::DownloadDefault);
    m_ui->LabelGameMode->setText(
        u"Mode %1 is none that I know, so the Cougar is left alone before this game. Tick a box, "
        "and untick it again if the joystick file shall be sent."_s.arg(m_mode));
    m_ui->LabelGameMode->setVisible(!known);
    const Game now = game();
    const QString hint =
        unstorableHint({ now.GameName, now.GamePath, now.GameDIRPath, now.GameJF });
    m_ui->LabelGameUnstorable->setText(hint);
    m_ui->LabelGameUnstorable->setVisible(!hint.isEmpty());
}

void GameFields::setGame(const Game &game)
{
    const QScopedValueRollback showing(m_isShowing, true);
    showText(*m_ui->GameName, game.GameName);
    showText(*m_ui->GamePath, game.GamePath);
    showText(*m_ui->GameDIRPath, game.GameDIRPath);
    showText(*m_ui->GameJF, game.GameJF);
    m_mode = game.GameJFmode;
    m_ui->CheckWindowsMode->setChecked(m_mode == qint16(GameMode::Windows));
    m_ui->CheckDefaultFile->setChecked(m_mode == qint16(GameMode::DownloadDefault));
    update();
}

void GameFields::startNaming()
{
    m_ui->GameName->setFocus();
    m_ui->GameName->selectAll();
}

Game GameFields::game() const
{
    const QString folder = m_ui->GameDIRPath->text().trimmed();
    return { m_ui->GameName->text().trimmed(), m_ui->GamePath->text().trimmed(),
             folder == wholeSample ? QString() : folder, m_ui->GameJF->text().trimmed(), m_mode };
}

EnterGameName::EnterGameName(const Paths &paths, Dialogs &dialogs, const QString &joystickFile,
                             QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::EnterGameName>()),
      m_fields(new GameFields(paths, dialogs, this))
{
    m_ui->setupUi(this);
    m_ui->layoutPage->insertWidget(0, m_fields);
    m_fields->setGame(startingGame(paths.filesFolder(), joystickFile));
    connect(m_fields, &GameFields::edited, this, &EnterGameName::update);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &EnterGameName::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &EnterGameName::reject);
    update();
}

EnterGameName::~EnterGameName() = default;

void EnterGameName::update()
{
    const Game now = game();
    bool storable = true;
    for (const QString &text : { now.GameName, now.GamePath, now.GameDIRPath, now.GameJF }) {
        storable = storable && isStorable(text);
    }
    m_ui->cmdOK->setEnabled(storable && !now.GameName.isEmpty() && !now.GamePath.isEmpty());
}

Game EnterGameName::game() const
{
    return m_fields->game();
}

} // namespace zeph
