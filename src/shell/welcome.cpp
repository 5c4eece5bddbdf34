// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/welcome.h"

#include "documents/coloured_text.h"
#include "documents/text_control.h"
#include "platform/control_array.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"
#include "platform/unwritable_note.h"
#include "preferences/colour_sample.h"
#include "preferences/colour_scheme.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "toolchain/hotas_folder.h"
#include "ui_welcome.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPixmap>
#include <QRadioButton>
#include <QRegularExpression>

#include <algorithm>

namespace zeph {

namespace {

constexpr int pictureWidth = 214;

} // namespace

Welcome::Welcome(const Context &context, const WelcomeAnswers &before, int intervalMs,
                 QWidget *parent)
    : QDialog(parent), m_context(context), m_answers(before), m_ui(std::make_unique<Ui::Welcome>())
{
    m_ui->setupUi(this);
    m_ui->txtFirstName->setText(before.firstName);
    m_ui->txtLastName->setText(before.lastName);
    m_ui->txtCallsign->setText(before.callsign);
    m_ui->txtHotasFolder->setText(before.hotasFolder);
    QPixmap picture(existingPath(context.paths.inApp(u"Welcome.bmp")));
    if (picture.width() > pictureWidth) {
        picture = picture.scaledToWidth(int(pictureWidth * devicePixelRatioF()),
                                        Qt::SmoothTransformation);
        picture.setDevicePixelRatio(devicePixelRatioF());
    }
    m_ui->picWelcome->setPixmap(picture);
    m_ui->picWelcome->setVisible(!picture.isNull());
    fillExperience();
    fillLook();
    connectPages();
    m_timerDots.setInterval(intervalMs);
    connect(&m_timerDots, &QTimer::timeout, this, &Welcome::tick);
    startStep(0);
}

void Welcome::fillExperience()
{
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
                    [this](int) { m_ui->cmdExperience->setEnabled(true); });
}

void Welcome::fillLook()
{
    const QString present = m_context.settings.of<ColourSettings>().TextFontName;
    m_ui->cboFont->addItems(
        fontChoices(QFontDatabase::families(), present, [](const QString &name) {
            return QFontDatabase::isFixedPitch(name) && !QFontDatabase::isPrivateFamily(name);
        }));
    m_ui->cboFont->setCurrentIndex(m_ui->cboFont->findText(present, Qt::MatchFixedString));
    m_ui->SampleLook->shown().setLocked(true);
    m_ui->SampleLook->setTabChangesFocus(true);
    m_ui->SampleLook->shown().setText(sampleJoystickText());
    showLook();
    connect(m_ui->cboFont, &QComboBox::currentTextChanged, this, [this](const QString &name) {
        m_answers.fontName = name;
        showLook();
    });
    connect(m_ui->Option_Colours_1, &QRadioButton::toggled, this, [this](bool dark) {
        m_answers.darkColours = dark;
        showLook();
    });
}

void Welcome::showLook()
{
    ColourSettings look = m_context.settings.of<ColourSettings>();
    if (m_answers.darkColours) {
        setDarkColours(look);
    }
    look.TextFontName = m_ui->cboFont->currentText();
    showSample(*m_ui->SampleLook, DocumentKind::Joystick, look);
}

void Welcome::connectPages()
{
    connect(m_ui->cmdNames, &QPushButton::clicked, this, [this] { startStep(m_step + 1); });
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &Welcome::GetHotasDirectory);
    connect(m_ui->cmdHotas, &QPushButton::clicked, this, &Welcome::acceptHotasFolder);
    connect(m_ui->cmdExperience, &QPushButton::clicked, this, &Welcome::acceptExperience);
    connect(m_ui->cmdFinish, &QPushButton::clicked, this, &Welcome::accept);
    connect(new UnwritableNote(*m_ui->pageName, *m_ui->lblNameNote), &UnwritableNote::changed,
            m_ui->cmdNames, &QPushButton::setEnabled);
    connect(new UnwritableNote(*m_ui->pageHotas, *m_ui->lblHotasUnwritable),
            &UnwritableNote::changed, m_ui->cmdHotas, &QPushButton::setEnabled);
}

WelcomeAnswers Welcome::answers() const
{
    WelcomeAnswers answers = m_answers;
    answers.firstName = m_ui->txtFirstName->text().trimmed();
    answers.lastName = m_ui->txtLastName->text().trimmed();
    answers.callsign = m_ui->txtCallsign->text().trimmed();
    return answers;
}

Welcome::~Welcome() = default;

bool Welcome::CheckForHotasDirectory() const
{
    return holdsRealTools(m_answers.hotasFolder);
}

void Welcome::GetHotasDirectory()
{
    const auto folder = m_context.dialogs.chooseFolder(u"Locate the HOTAS directory"_s,
                                                       m_ui->txtHotasFolder->text());
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
        m_ui->lblGreeting->setText(u"Ok "_s + callsignOrBuddy(answers().callsign)
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

void Welcome::acceptHotasFolder()
{
    const QString folder = hotasFolderBy(m_ui->txtHotasFolder->text(), m_context.paths.appFolder);
    if (!folderExists(folder)) {
        m_ui->lblHotasNote->setText(u"I can't find that folder. An empty line stands for the one "
                                    "that I live in."_s);
        return;
    }
    m_answers.hotasFolder = folder;
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
    showPage(m_ui->pageLook, m_ui->cboFont);
}

} // namespace zeph
