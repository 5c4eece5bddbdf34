// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/logicflagsdetected.h"

#include "composer/generators/free_flags.h"
#include "composer/generators/logic_workbench.h"
#include "composer/logic_flags_settings.h"
#include "platform/colours.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "ui_logicflagsdetected.h"

#include <QAction>

namespace zeph {

namespace {

constexpr ColorRef green = 65280;
/// Flags in one row of the window.
constexpr int rowLength = 8;

} // namespace

LogicFlagsDetected::LogicFlagsDetected(const Context &context, Documents &documents,
                                       QAction *viewer, QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_documents(documents),
      m_ui(std::make_unique<Ui::LogicFlagsDetected>())
{
    m_ui->setupUi(this);
    makeLabels();
    connect(m_ui->CMD_FlagViewer, &QPushButton::clicked, viewer, &QAction::trigger);
    PositionLogicDetector();
}

LogicFlagsDetected::~LogicFlagsDetected() = default;

void LogicFlagsDetected::makeLabels()
{
    int index = 0;
    for (const QStringView flag : flagNames()) {
        auto *label = new QLabel(flag.toString(), m_ui->PaneFlags);
        label->setObjectName(u"Label1_%1"_s.arg(index));
        label->setAlignment(Qt::AlignCenter);
        label->setFrameShape(QFrame::StyledPanel);
        label->setMargin(3);
        label->setAutoFillBackground(true);
        m_ui->gridFlags->addWidget(label, index / rowLength, index % rowLength);
        ++index;
    }
    m_labels = ControlArray<QLabel>(this, u"Label1"_s);
}

void LogicFlagsDetected::CheckForUnassignedFlags()
{
    m_context.status.setText(u" Identifying unassigned logical flags ..."_s);
    const QString text = m_documents.joystick().text();
    const auto free = freeFlags(text);
    for (int flag = 0; flag < m_labels.count(); ++flag) {
        showFlag(flag, free[size_t(flag)]);
    }
    if (!text.trimmed().isEmpty()) {
        m_context.status.setText(u" Unassigned flags indicated in green"_s);
    }
}

void LogicFlagsDetected::showFlag(int flag, bool isFree) const
{
    QPalette look;
    if (isFree) {
        look.setColor(QPalette::Window, toColor(green));
        look.setColor(QPalette::WindowText, Qt::black);
    }
    QLabel *label = m_labels[flag];
    label->setPalette(look);
    const QString state = isFree ? u"%1 is free"_s : u"%1 is used"_s;
    label->setAccessibleName(state.arg(label->text()));
    label->setToolTip(label->accessibleName());
}

void LogicFlagsDetected::PositionLogicDetector()
{
    auto &settings = m_context.settings.of<LogicFlagsSettings>();
    const SettingsFiles files = settingsFilesOf(m_context.paths);
    tellProblems(m_context.dialogs,
                 readGroup(m_context.settings.group<LogicFlagsSettings>(), files));
    adjustSize();
    const SettingKey &key = rowOf(&LogicFlagsSettings::LogicDetectorLeft);
    if (files.store.text(key.section, key.key).isEmpty() && parentWidget()) {
        openBeside(*this, *parentWidget()->window());
        return;
    }
    restorePlace(*this,
                 { QPoint(pixelsFromTwips(settings.LogicDetectorLeft),
                          pixelsFromTwips(settings.LogicDetectorTop)),
                   QSize() });
}

void LogicFlagsDetected::SaveLogicDetectorPosition()
{
    auto &settings = m_context.settings.of<LogicFlagsSettings>();
    const QRect place = normalPlace(*this);
    settings.LogicDetectorTop = twipsFromPixels(place.y());
    settings.LogicDetectorLeft = twipsFromPixels(place.x());
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(
        m_context.settings, settingsFilesOf(m_context.paths),
        { &LogicFlagsSettings::LogicDetectorTop, &LogicFlagsSettings::LogicDetectorLeft });
}

void LogicFlagsDetected::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    CheckForUnassignedFlags();
}

void LogicFlagsDetected::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        CheckForUnassignedFlags();
    }
}

void LogicFlagsDetected::closeEvent(QCloseEvent *event)
{
    SaveLogicDetectorPosition();
    QWidget::closeEvent(event);
}

void LogicFlagsDetected::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace zeph
