#include "progress_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/shown_text.h"

namespace {

constexpr int widthInCharacters = 56;

QLabel* plainLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

ProgressDialog::ProgressDialog(Pass pass, int total) : pass_(pass) {
    setWindowTitle(QStringLiteral("Velmora"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   (pass == Pass::Quit ? Qt::WindowCloseButtonHint : Qt::WindowFlags()));
    auto* layout = new QVBoxLayout(this);
    QLabel* heading = plainLabel(this);
    heading->setText(pass == Pass::Launch ? tr("Showing the listed items…")
                                          : tr("Hiding the listed items…"));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    layout->addWidget(heading);

    name_ = plainLabel(this);
    name_->setFixedWidth(widthInCharacters * fontMetrics().averageCharWidth());
    layout->addWidget(name_);

    bar_ = new QProgressBar(this);
    bar_->setRange(0, total);
    bar_->setTextVisible(false);
    bar_->setAccessibleName(heading->text());
    layout->addWidget(bar_);

    auto* last = new QHBoxLayout;
    count_ = plainLabel(this);
    last->addWidget(count_);
    last->addStretch();
    if (pass == Pass::Quit) {
        stop_ = new QPushButton(tr("Stop"), this);
        connect(stop_, &QPushButton::clicked, this, &ProgressDialog::reject);
        last->addWidget(stop_);
    }
    layout->addLayout(last);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgressDialog::follow(int done, const QString& name) {
    bar_->setValue(done);
    name_->setText(fontMetrics().elidedText(shownInLine(name), Qt::ElideMiddle, name_->width()));
    const QLocale locale;
    count_->setText(tr("%1 of %2").arg(locale.toString(done), locale.toString(bar_->maximum())));
}

void ProgressDialog::reject() {
    if (pass_ == Pass::Quit && stop_->isEnabled()) {
        stop_->setEnabled(false);
        emit stopRequested();
    }
}
