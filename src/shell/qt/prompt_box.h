// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QLineEdit>

/// A box that asks for one line of text. The text offered is selected, so that typing replaces it.
class PromptBox : public QDialog {
    Q_OBJECT
public:
    PromptBox(const QString& title, const QString& question, const QString& offered, QWidget* parent);
    QString answer() const { return line_->text(); }

private:
    QLineEdit* line_;
};
