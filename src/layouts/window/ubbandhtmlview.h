// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class UBBandHTMLview;
}

/// Turns coloured text into mark-up for forums or web pages: first the options, then the result to
/// copy.
class UBBandHTMLview : public QDialog
{
    Q_OBJECT
public:
    /// The text stays as it is; characters without a colour have the plain one.
    UBBandHTMLview(RichText text, ColorRef plain, QWidget *parent = nullptr);
    ~UBBandHTMLview() override;

private:
    void Command1_Click();
    void convert();
    void followType();

    RichText m_text;
    ColorRef m_plain;
    QString m_result;
    std::unique_ptr<Ui::UBBandHTMLview> m_ui;
};

} // namespace zeph
