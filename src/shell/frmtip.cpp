// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/frmtip.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/text1252.h"
#include "platform/icons.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "settings/shared_settings.h"
#include "ui_frmtip.h"

#include <QRandomGenerator>

namespace zeph {

namespace {

constexpr int pictureSize = 48;

qsizetype byChance(qsizetype count)
{
    return QRandomGenerator::global()->bounded(qint64(count));
}

} // namespace

frmTip::frmTip(const Paths &paths, Settings &settings, Pick pick, QWidget *parent)
    : QDialog(parent), m_paths(paths), m_settings(settings),
      m_pick(pick ? std::move(pick) : byChance), m_ui(std::make_unique<Ui::frmTip>())
{
    m_ui->setupUi(this);
    m_ui->frameTip->setBackgroundRole(QPalette::Base);
    m_ui->picTip->setPixmap(
        iconNamed(paths, u"zeph").pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    m_ui->chkLoadTipsAtStartup->setChecked(settings.of<SharedSettings>().ShowTips);
    connect(m_ui->cmdNextTip, &QPushButton::clicked, this, [this] {
        m_tips.next();
        DisplayCurrentTip();
    });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTip::accept);
    LoadTips();
    DisplayCurrentTip();
}

frmTip::~frmTip() = default;

bool frmTip::LoadTips()
{
    const auto file = readWholeFile(existingPath(m_paths.inApp(u"Tips.txt")));
    QStringList tips = file ? parseTips(fromText1252(*file)) : QStringList();
    const qsizetype first = tips.isEmpty() ? 0 : m_pick(tips.size());
    m_tips = TipCycle(std::move(tips), first);
    m_ui->cmdNextTip->setEnabled(!m_tips.isEmpty());
    return !m_tips.isEmpty();
}

void frmTip::DisplayCurrentTip()
{
    m_ui->lblTipText->setText(m_tips.isEmpty() ? u"I'd love to give you a tip, "_s
                                      + m_settings.of<SharedSettings>().PilotCallsign
                                      + u", but I can't find any. They should be located here: "_s
                                      + m_paths.inApp(u"Tips.txt")
                                               : m_tips.current());
}

void frmTip::accept()
{
    m_settings.of<SharedSettings>().ShowTips = m_ui->chkLoadTipsAtStartup->isChecked();
    // When the store cannot be written, the setting still holds for this run.
    (void)saveSettings(m_settings, settingsFilesOf(m_paths), { &SharedSettings::ShowTips });
    QDialog::accept();
}

} // namespace zeph
