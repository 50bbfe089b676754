#include "hiding/information_pane.h"

#include <QDateTime>
#include <QLocale>

#include "platform/bundle.h"
#include "platform/file_attributes.h"
#include "platform/workspace.h"
#include "state/item_record.h"
#include "ui_Main.h"

namespace {

constexpr int iconSide = 96;

// In units of 8192 bytes, in single precision: the figure has always been counted so.
QString sizeText(qint64 bytes) {
    const auto figure = static_cast<float>(static_cast<double>(bytes) * 0.125 * 0.0009765625);
    return QString::asprintf("%f K", static_cast<double>(figure));
}

QString dateText(const QDateTime& date) {
    if (!date.isValid()) {
        return {};
    }
    const QLocale locale;
    const QString pattern =
        Bundle::localizedString(QStringLiteral("%1 at %2"), QStringLiteral("Main"));
    return pattern.arg(locale.toString(date.date(), locale.dateFormat(QLocale::LongFormat)
                                                        .remove(QStringLiteral("dddd, "))
                                                        .remove(QStringLiteral("dddd "))),
                       locale.toString(date.time(), QLocale::ShortFormat));
}

}  // namespace

InformationPane::InformationPane(const Ui::Main& outlets)
    : outlets_(outlets), lookup_(outlets.fileIconView, [this] { showLookedUp(); }) {}

void InformationPane::showItem(const ItemRecord& record) {
    const QString path = record.filePath();
    path_ = path;
    lookup_.request();
    dressTitle();
    const auto attributes = attributesOfItem(path);
    outlets_.filleTitle->setText(record.fileTitle());
    // The first question for a type reads the system's list of types: not before the first paint.
    outlets_.kinDescLabel->setText(typesAreRead_ ? Workspace::shared().typeOfFile(path)
                                                 : QString());
    outlets_.whereDescLabel->setText(path);
    outlets_.sizeDescLabel->setText(sizeText(attributes ? attributes->size : 0));
    outlets_.createdDescLabel->setText(attributes ? dateText(attributes->created) : QString());
    outlets_.modifiedDescLabel->setText(attributes ? dateText(attributes->modified) : QString());
}

void InformationPane::dressTitle() {
    // An empty list shows no title, and a font that is not used need not be loaded at the start.
    if (!outlets_.filleTitle->testAttribute(Qt::WA_SetFont)) {
        QFont font = outlets_.filleTitle->font();
        font.setBold(true);
        font.setPointSizeF(font.pointSizeF() * 1.2);
        outlets_.filleTitle->setFont(font);
    }
}

void InformationPane::showLookedUp() {
    if (!typesAreRead_) {
        typesAreRead_ = true;
        outlets_.kinDescLabel->setText(Workspace::shared().typeOfFile(path_));
    }
    const QIcon icon = Workspace::shared().iconForFile(path_);
    outlets_.fileIconView->setPixmap(
        icon.pixmap(QSize(iconSide, iconSide), outlets_.fileIconView->devicePixelRatioF()));
}

void InformationPane::clear() {
    lookup_.cancel();
    outlets_.fileIconView->clear();
    for (QLabel* label :
         {static_cast<QLabel*>(outlets_.filleTitle), static_cast<QLabel*>(outlets_.kinDescLabel),
          static_cast<QLabel*>(outlets_.whereDescLabel),
          static_cast<QLabel*>(outlets_.sizeDescLabel),
          static_cast<QLabel*>(outlets_.createdDescLabel),
          static_cast<QLabel*>(outlets_.modifiedDescLabel)}) {
        label->setText(QString());
    }
}

void InformationPane::setLabelsHidden(bool hidden) {
    const Ui::Main& ui = outlets_;
    for (QLabel* label : std::initializer_list<QLabel*>{
             ui.kinTitle, ui.whereTitle, ui.modifiedTitle, ui.createdTitle, ui.sizeTitle,
             ui.kinDescLabel, ui.whereDescLabel, ui.modifiedDescLabel, ui.createdDescLabel,
             ui.sizeDescLabel}) {
        label->setHidden(hidden);
    }
}
