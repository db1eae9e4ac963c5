#include "register/EmptyState.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillmere::host {

EmptyState::EmptyState() {
    title_ = new QLabel;
    title_->setProperty("role", "emptyTitle");
    title_->setObjectName(QStringLiteral("emptyTitle"));
    title_->setTextFormat(Qt::PlainText);
    hint_ = new QLabel;
    hint_->setProperty("role", "emptyHint");
    hint_->setObjectName(QStringLiteral("emptyHint"));
    hint_->setTextFormat(Qt::PlainText);
    hint_->setAlignment(Qt::AlignHCenter);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addStretch(1);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i] = new QPushButton;
        buttons_[i]->setObjectName(QStringLiteral("wayOn%1").arg(i + 1));
        buttons_[i]->setProperty("plain", true);
        connect(buttons_[i], &QPushButton::clicked, this, [this, i] {
            // What is taken may tell other ways.
            const auto take = ways_[i].take;
            take();
        });
        row->addWidget(buttons_[i]);
    }
    row->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addStretch(2);
    column->addWidget(title_, 0, Qt::AlignHCenter);
    column->addWidget(hint_, 0, Qt::AlignHCenter);
    column->addSpacing(6);
    column->addLayout(row);
    column->addStretch(3);
}

void EmptyState::tell(const QString& title, const QString& hint, std::vector<WayOn> ways) {
    title_->setText(title);
    hint_->setText(hint);
    ways_ = std::move(ways);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const bool used = i < ways_.size();
        buttons_[i]->setText(used ? ways_[i].caption : QString());
        buttons_[i]->setVisible(used);
    }
}

} // namespace quillmere::host
