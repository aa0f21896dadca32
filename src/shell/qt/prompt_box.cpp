// SPDX-License-Identifier: MIT
#include "shell/qt/prompt_box.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

PromptBox::PromptBox(const QString& title, const QString& question, const QString& offered, QWidget* parent)
    : QDialog(parent), line_(new QLineEdit(offered)) {
    setWindowTitle(title);
    auto* const label = new QLabel(question);
    label->setTextFormat(Qt::PlainText);
    line_->setAccessibleName(question);
    line_->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    line_->selectAll();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->setContentsMargins(16, 16, 16, 12);
    column->addWidget(label);
    column->addWidget(line_);
    column->addWidget(buttons);
    // A box that can be pulled wider has nothing more to show.
    column->setSizeConstraint(QLayout::SetFixedSize);
    line_->setFocus();
}
