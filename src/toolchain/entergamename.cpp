// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/entergamename.h"

#include "platform/core/text1252.h"
#include "platform/dialogs.h"
#include "ui_entergamename.h"

namespace zeph {

namespace {

/// How the field of the working directory begins while nobody has touched it.
constexpr QStringView sample = u"eg";
/// What stands in the directory's field until the pilot writes there.
constexpr QStringView wholeSample = u"eg C:\\Games\\Falcon4";

const QString commandHelp =
    u"This is what I run to start your game: the full path of its program, and behind it, after a "
    "blank, any switches that the game understands, as in\n\nC:\\Games\\Falcon4\\falcon4.exe "
    "-g4\n\n"
    "The Browse button finds the program for you; type the switches behind it. If the path has "
    "blanks in it, you may put it in double quotes.\n\nIt can be a web address too: anything that "
    "begins with www. or http opens in your browser."_s;

const QString folderHelp =
    u"Most games look for their own files in the directory that they're started from, so this "
    "should be the folder that the game's program is in. Some games have their program in a "
    "folder of its own and want to be started from the one above it: if a game complains about "
    "missing files, look at the properties of the shortcut that its installation made, and copy "
    "the \"Start in\" entry here.\n\nWhen you browse for the game's file, I fill this in for you."_s;

} // namespace

EnterGameName::EnterGameName(const Paths &paths, Dialogs &dialogs, const QString &joystickFile,
                             QWidget *parent)
    : QDialog(parent), m_paths(paths), m_dialogs(dialogs),
      m_ui(std::make_unique<Ui::EnterGameName>())
{
    m_ui->setupUi(this);
    const bool suggested = !joystickFile.isEmpty();
    m_ui->TextGameJF->setText(suggested ? joystickFile
                                        : paths.filesFolder() + defaultGameFile.toString());
    m_ui->CheckWindowsMode->setChecked(!suggested);
    connectFields();
    connectButtons();
    update();
}

EnterGameName::~EnterGameName() = default;

void EnterGameName::connectFields()
{
    for (QLineEdit *field :
         { m_ui->TextGameName, m_ui->TextGamePath, m_ui->TextGameDIRPath, m_ui->TextGameJF }) {
        connect(field, &QLineEdit::textChanged, this, &EnterGameName::update);
    }
    // Exclusive, and yet both can be off.
    const auto exclude = [this](QCheckBox *ticked, QCheckBox *other) {
        connect(ticked, &QCheckBox::toggled, this, [this, other](bool on) {
            if (on) {
                other->setChecked(false);
            }
            update();
        });
    };
    exclude(m_ui->CheckWindowsMode, m_ui->CheckDefaultFile);
    exclude(m_ui->CheckDefaultFile, m_ui->CheckWindowsMode);
}

void EnterGameName::connectButtons()
{
    connect(m_ui->cmdBrowsePath, &QPushButton::clicked, this, &EnterGameName::browseCommand);
    connect(m_ui->cmdBrowseDIR, &QPushButton::clicked, this, &EnterGameName::browseFolder);
    connect(m_ui->cmdBrowseJF, &QPushButton::clicked, this, &EnterGameName::browseJoystickFile);
    connect(m_ui->cmdHelpPath, &QPushButton::clicked, this,
            [this] { m_dialogs.tell(u"Important information ... "_s, commandHelp); });
    connect(m_ui->cmdHelpDIR, &QPushButton::clicked, this,
            [this] { m_dialogs.tell(u"About the working directory ... "_s, folderHelp); });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &EnterGameName::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &EnterGameName::reject);
}

void EnterGameName::browseCommand()
{
    const auto path = m_dialogs.openFile({ u"Select your game's file"_s,
                                           u"Executables (*.exe)|*.exe|All files (*.*)|*.*"_s,
                                           {},
                                           {},
                                           {} });
    if (!path) {
        return;
    }
    m_ui->TextGamePath->setText(*path);
    if (m_ui->TextGameDIRPath->text().startsWith(sample)) {
        const QString folder = folderOf(*path);
        m_ui->TextGameDIRPath->setText(folder.size() > 1 ? folder.chopped(1) : folder);
    }
}

void EnterGameName::browseFolder()
{
    const QString now = m_ui->TextGameDIRPath->text();
    if (const auto folder = m_dialogs.chooseFolder(u"Select your game's working directory"_s,
                                                   now.startsWith(sample) ? QString() : now)) {
        m_ui->TextGameDIRPath->setText(*folder);
    }
}

void EnterGameName::browseJoystickFile()
{
    if (const auto path = m_dialogs.openFile({ u"Select the joystick file for your game"_s,
                                               u"Joystick file (*.tmj)|*.tmj|All files (*.*)|*.*"_s,
                                               u"tmj"_s,
                                               m_paths.filesFolder(),
                                               {} })) {
        m_ui->TextGameJF->setText(*path);
    }
}

GameMode EnterGameName::mode() const
{
    return m_ui->CheckWindowsMode->isChecked() ? GameMode::Windows
        : m_ui->CheckDefaultFile->isChecked()  ? GameMode::DownloadDefault
                                               : GameMode::Download;
}

void EnterGameName::update()
{
    const Game now = game();
    bool storable = true;
    for (const QString &text : { now.GameName, now.GamePath, now.GameDIRPath, now.GameJF }) {
        storable = storable && firstNot1252(text) < 0;
    }
    m_ui->cmdOK->setEnabled(storable && !now.GameName.isEmpty() && !now.GamePath.isEmpty());
    const bool ownFile = mode() == GameMode::Download;
    m_ui->TextGameJF->setEnabled(ownFile);
    m_ui->cmdBrowseJF->setEnabled(ownFile);
}

Game EnterGameName::game() const
{
    const QString folder = m_ui->TextGameDIRPath->text().trimmed();
    return { m_ui->TextGameName->text().trimmed(), m_ui->TextGamePath->text().trimmed(),
             folder == wholeSample ? QString() : folder, m_ui->TextGameJF->text().trimmed(),
             qint16(mode()) };
}

} // namespace zeph
