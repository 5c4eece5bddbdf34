// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/welcome.h"

#include "platform/control_array.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"
#include "settings/shared_settings.h"
#include "ui_welcome.h"

#include <QEvent>
#include <QPixmap>
#include <QRadioButton>
#include <QRegularExpression>

#include <algorithm>

namespace zeph {

namespace {

constexpr int pictureWidth = 200;

} // namespace

Welcome::Welcome(const Paths &paths, Dialogs &dialogs, int intervalMs, QWidget *parent)
    : QDialog(parent), m_paths(paths), m_dialogs(dialogs), m_ui(std::make_unique<Ui::Welcome>())
{
    m_ui->setupUi(this);
    m_answers.hotasFolder = paths.hotasFolder;
    QPixmap picture(existingPath(paths.inApp(u"Welcome.bmp")));
    if (picture.width() > pictureWidth) {
        picture = picture.scaledToWidth(int(pictureWidth * devicePixelRatioF()),
                                        Qt::SmoothTransformation);
        picture.setDevicePixelRatio(devicePixelRatioF());
    }
    m_ui->picWelcome->setPixmap(picture);
    m_ui->picWelcome->setVisible(!picture.isNull());

    const ControlArray<QRadioButton> options(this, u"Option_Experience"_s);
    const ControlArray<QLabel> texts(this, u"lblExperience"_s);
    for (int i = 0; i < options.count(); ++i) {
        // A radio button cannot wrap its text, so the sentence is a label of its own that picks the
        // option when it is clicked.
        const QString text = QString::fromUtf16(experienceOptions()[size_t(i)]);
        options[i]->setAccessibleName(text);
        texts[i]->setText(text);
        texts[i]->installEventFilter(this);
        texts[i]->setBuddy(options[i]);
    }
    options.connect(this, &QRadioButton::toggled,
                    [this](int) { m_ui->cmdFinish->setEnabled(true); });
    connect(m_ui->cmdNames, &QPushButton::clicked, this, &Welcome::acceptNames);
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &Welcome::GetHotasDirectory);
    connect(m_ui->cmdHotas, &QPushButton::clicked, this, &Welcome::acceptHotasFolder);
    connect(m_ui->cmdFinish, &QPushButton::clicked, this, &Welcome::acceptExperience);
    m_timerDots.setInterval(intervalMs);
    connect(&m_timerDots, &QTimer::timeout, this, &Welcome::tick);
    startStep(0);
}

Welcome::~Welcome() = default;

bool Welcome::CheckForHotasDirectory() const
{
    return !m_answers.hotasFolder.isEmpty();
}

void Welcome::GetHotasDirectory()
{
    const auto folder =
        m_dialogs.chooseFolder(u"Locate the HOTAS directory"_s, m_ui->txtHotasFolder->text());
    if (folder) {
        m_ui->txtHotasFolder->setText(withClosingSeparator(*folder));
    }
}

void Welcome::startStep(size_t step)
{
    m_step = step;
    m_ticks = 0;
    m_ui->lblScript->setText(QString::fromUtf16(welcomeScript()[step].line));
    showPage(m_ui->pageScript, nullptr);
    m_timerDots.start();
}

void Welcome::tick()
{
    const WelcomeStep &step = welcomeScript()[m_step];
    if (++m_ticks > step.ticks) {
        m_timerDots.stop();
        finishStep();
    } else if (step.dots) {
        m_ui->lblScript->setText(m_ui->lblScript->text() + u'.');
    }
}

void Welcome::finishStep()
{
    if (welcomeScript()[m_step].greets) {
        m_ui->lblGreeting->setText(u"Ok "_s + callsignOrBuddy(m_answers.callsign)
                                   + u", let's see what you're made of."_s);
    }
    switch (welcomeScript()[m_step].page) {
    case WelcomePage::None:
        startStep(m_step + 1);
        return;
    case WelcomePage::Name:
        showPage(m_ui->pageName, m_ui->txtFirstName);
        return;
    case WelcomePage::Hotas:
        if (CheckForHotasDirectory()) {
            startStep(m_step + 1);
        } else {
            showPage(m_ui->pageHotas, m_ui->cmdBrowse);
        }
        return;
    case WelcomePage::Experience:
        showPage(m_ui->pageExperience, m_ui->Option_Experience_0);
        return;
    }
}

void Welcome::showPage(QWidget *page, QWidget *focus)
{
    m_ui->pages->setCurrentWidget(page);
    // The page's own button is the one that Return presses.
    const auto buttons = page->findChildren<QPushButton *>(QRegularExpression(u"^cmd(?!Browse)"_s));
    for (QPushButton *button : buttons) {
        button->setDefault(true);
    }
    if (focus) {
        focus->setFocus();
    }
}

bool Welcome::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const ControlArray<QLabel> texts(this, u"lblExperience"_s);
        const auto found = std::find(texts.begin(), texts.end(), watched);
        if (found != texts.end()) {
            static_cast<QRadioButton *>((*found)->buddy())->click();
        }
    }
    return QDialog::eventFilter(watched, event);
}

void Welcome::acceptNames()
{
    m_answers.firstName = m_ui->txtFirstName->text().trimmed();
    m_answers.lastName = m_ui->txtLastName->text().trimmed();
    m_answers.callsign = m_ui->txtCallsign->text().trimmed();
    startStep(m_step + 1);
}

void Welcome::acceptHotasFolder()
{
    m_answers.hotasFolder = withClosingSeparator(m_ui->txtHotasFolder->text().trimmed());
    startStep(m_step + 1);
}

void Welcome::acceptExperience()
{
    const ControlArray<QRadioButton> options(this, u"Option_Experience"_s);
    for (int i = 0; i < options.count(); ++i) {
        if (options[i]->isChecked()) {
            m_answers.experience = i;
        }
    }
    accept();
}

} // namespace zeph
