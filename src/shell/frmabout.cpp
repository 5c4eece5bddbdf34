// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/frmabout.h"

#include "platform/core/paths.h"
#include "platform/core/stand_in.h"
#include "shell/version_check.h"
#include "ui_frmabout.h"

#include <QPixmap>

namespace zeph {

namespace {

constexpr int widestPicture = 420;

} // namespace

frmAbout::frmAbout(const Paths &paths, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    const QString path = paths.inApp(u"Zeph.bmp");
    QPixmap picture(existingPath(path));
    if (picture.isNull()) {
        m_ui->picAbout->setText(u"I can't find my own portrait. It should be located here: "_s
                                + path);
    } else {
        if (picture.width() > widestPicture) {
            const double ratio = devicePixelRatioF();
            picture = picture.scaledToWidth(int(widestPicture * ratio), Qt::SmoothTransformation);
            picture.setDevicePixelRatio(ratio);
        }
        m_ui->picAbout->setPixmap(picture);
    }
    m_ui->lblVersion->setText(u"Version "_s + QString::fromUtf16(versionText));
    m_ui->lblStandIns->setVisible(isStandIn(paths.compiler()) || isStandIn(paths.config()));
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAbout::DialogAction);
}

frmAbout::~frmAbout() = default;

void frmAbout::DialogAction()
{
    accept();
}

} // namespace zeph
