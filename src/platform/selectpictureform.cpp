// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/selectpictureform.h"

#include "platform/picture_file.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

namespace zeph {

namespace {

constexpr QSize previewSize(260, 200);

} // namespace

SelectPictureForm::SelectPictureForm(QWidget *parent, const QString &title)
    : QFileDialog(parent, title), m_preview(new QLabel), m_words(new QLabel)
{
    setObjectName(u"SelectPictureForm"_s);
    // The system's own dialog has no room for a preview.
    setOption(QFileDialog::DontUseNativeDialog);
    setAcceptMode(QFileDialog::AcceptOpen);
    setFileMode(QFileDialog::ExistingFile);
    addPreview();
    resize(width() + previewSize.width(), height());
    connect(this, &QFileDialog::currentChanged, this, &SelectPictureForm::showPreview);
    showPreview({});
}

void SelectPictureForm::addPreview()
{
    m_preview->setObjectName(u"Preview"_s);
    m_preview->setAccessibleName(u"Preview"_s);
    m_preview->setFixedSize(previewSize + QSize(4, 4));
    m_preview->setFrameShape(QFrame::StyledPanel);
    m_preview->setAlignment(Qt::AlignCenter);
    m_words->setObjectName(u"PreviewWords"_s);
    m_words->setWordWrap(true);
    m_words->setMaximumWidth(previewSize.width());
    m_words->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto *column = new QVBoxLayout;
    column->addWidget(m_preview);
    column->addWidget(m_words, 1);
    if (auto *grid = qobject_cast<QGridLayout *>(layout())) {
        grid->addLayout(column, 1, grid->columnCount());
    }
}

void SelectPictureForm::showPreview(const QString &path)
{
    m_preview->clear();
    if (!QFileInfo(path).isFile()) {
        m_words->setText(u"Select a picture to see it here"_s);
        return;
    }
    const double ratio = devicePixelRatioF();
    const auto picture = readPicture(path, previewSize * ratio);
    if (!picture) {
        m_words->setText(picture.error());
        return;
    }
    QPixmap pixmap = QPixmap::fromImage(picture->image);
    pixmap.setDevicePixelRatio(ratio);
    m_preview->setPixmap(pixmap);
    m_words->setText(u"%1 by %2 pixels"_s.arg(picture->size.width()).arg(picture->size.height()));
}

} // namespace zeph
