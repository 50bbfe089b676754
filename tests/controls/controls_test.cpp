#include <cstdlib>

#include <QCheckBox>
#include <QPainter>
#include <QTranslator>

#include "app/about_panel_controller.h"
#include "controls/velmora_style.h"
#include "password/rd_password_view_controller.h"
#include "preferences/rd_two_window_controller.h"
#include "window.h"

/// The controls, and with them the look of the windows.
class ControlsTest final : public QObject {
    Q_OBJECT

private:
    static void verifyNothingIsCutOff(const QWidget& window) {
        for (const QWidget* part : window.findChildren<QWidget*>()) {
            QSize least = part->minimumSizeHint();
            if (part->hasHeightForWidth()) {
                least.setHeight(part->heightForWidth(part->width()));
            }
            // The header's buttons are one unit beyond it, as given.
            const QRect room = part->parentWidget()->rect().adjusted(-1, -1, 1, 1);
            const bool isCut =
                least.expandedTo(part->size()) != part->size() || !room.contains(part->geometry());
            const bool isText = part->inherits("QLabel") || part->inherits("QAbstractButton");
            QVERIFY2(!part->isVisible() || !isText || !isCut,
                     qPrintable(part->objectName() + QApplication::font().toString()));
        }
        const auto* menus = window.findChild<QMenuBar*>();
        for (QAction* menu : menus != nullptr ? menus->actions() : QList<QAction*>()) {
            QVERIFY(menus->rect().contains(menus->actionGeometry(menu)));
        }
    }

private slots:
    void initTestCase() { VelmoraStyle::install(); }

    void brightensTheFillByTheSameNoiseEveryTime() {
        const QImage grain = RDNSView::createNoiseImageRefWithWidth(128, 128, 0.5F);
        std::srand(124);
        for (int at = 0; at < 128 * 128; ++at) {
            QCOMPARE(grain.constScanLine(at / 128)[at % 128], std::rand() % 256 / 2);
        }
        QVERIFY(RDNSView::createNoiseImageRefWithWidth(0, 5, 1).isNull());
        RDNSView view;
        view.resize(200, 300);
        const QImage picture = view.grab().toImage();
        const int scale = static_cast<int>(picture.devicePixelRatio());
        for (const QPoint at : {QPoint(0, 299), QPoint(3, 172), QPoint(130, 171), QPoint(199, 0)}) {
            const int fromBottom = (300 - 1 - at.y()) % 128;  // where the pattern begins
            const int noise = view.noisePattern().constScanLine(127 - fromBottom)[at.x() % 128];
            QCOMPARE(picture.pixelColor(at * scale), QColor(185 + noise, 190 + noise, 197 + noise));
        }
        view.setGrain(0);
        QCOMPARE(view.grab().toImage().pixelColor(7, 7), QColor(185, 190, 197));
        view.setBackgroundColor(Qt::red);
        QCOMPARE(view.grab().toImage().pixelColor(7, 7), QColor(Qt::red));
    }

    void drawsPicturesPixelForPixel() {
        const QIcon icon = Bundle::imageNamed("search");
        PictureLabel label;
        label.setPicture(icon, {20, 20});
        label.resize(20, 20);
        QImage drawn = label.grab().toImage();
        QImage expected(drawn.size(), drawn.format());
        expected.fill(label.palette().color(QPalette::Window));
        QPainter(&expected).drawPixmap(0, 0, icon.pixmap(drawn.size(), 1.0));
        drawn.setDevicePixelRatio(1);
        QCOMPARE(drawn, expected);
    }

    void breaksALongWordWhereTheWidthEnds() {
        WrapLabel label;
        label.setText(QString(60, 'M'));
        const int line = label.heightForWidth(5000);
        const int height = label.heightForWidth(100);
        QVERIFY(height >= 4 * line);
        label.resize(100, height);
        QCOMPARE(label.sizeHint().height(), label.heightForWidth(label.sizeHint().width()));
        const QImage picture = label.grab().toImage();
        for (const int top : {0, height - line}) {
            const QImage cut = picture.copy(0, top, 100, line);
            QImage blank(cut.size(), cut.format());
            blank.fill(picture.pixelColor(picture.rect().bottomRight()));
            QVERIFY(cut != blank);
        }
        label.setText("two\nlines");
        QCOMPARE(label.heightForWidth(5000), 2 * line);
    }

    void cutsNothingOffInAnyLanguageAtAnyFontSize() {
        const QFont usual = QApplication::font();
        const QString longName(240, 'x');
        for (const QString& table : QDir(":/translations").entryList({"*.qm"})) {
            QTranslator language;
            QVERIFY(language.load(":/translations/" + table));
            QCoreApplication::installTranslator(&language);
            for (const int points : {9, 14, 24}) {
                QApplication::setFont(QFont(usual.family(), points));
                ListWindow w(points == 14 ? QStringList() : QStringList{"a"});
                w.ui.quietLine->setText(QString("Quiet words. ").repeated(20) + longName);
                w.ui.quietLine->show();
                RDTwoWindowController preferences;
                RDPasswordViewController password;
                AboutPanelController about;
                for (QWidget* window : std::initializer_list<QWidget*>{
                         &w.main.window(), preferences.window(), &password, about.window()}) {
                    window->show();
                    window->resize(1, 1);
                    QCoreApplication::processEvents();
                    verifyNothingIsCutOff(*window);
                    QVERIFY(window->width() < window->fontMetrics().horizontalAdvance(longName));
                }
            }
        }
        QApplication::setFont(usual);
    }

    void drawsBlackSeparators() {
        ListWindow w({"a"});
        const QImage image = w.main.window().grab().toImage();
        const qreal scale = image.devicePixelRatio();
        for (const QFrame* line :
             {w.ui.fileListViewRightLine, w.ui.fileListViewBottomLine, w.ui.itemInfomationLine}) {
            const QPointF middle = line->mapTo(&w.main.window(), QRectF(line->rect()).center());
            int black = 0;
            for (int step = -4; step <= 4; ++step) {
                const QPoint off = line->width() == 1 ? QPoint(step, 0) : QPoint(0, step);
                black += image.pixelColor((middle * scale).toPoint() + off) == Qt::black ? 1 : 0;
            }
            QVERIFY2(black >= 1 && qAbs(black - scale) < 1, qPrintable(line->objectName()));
        }
    }

    void isOfOneLightPieceOnADarkDesktop() {
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black));
        ListWindow w({"a"});
        QVERIFY(w.ui.mainMenu->grab().toImage().pixelColor(3, 3).lightness() > 200);
        QVERIFY(w.ui.velmora->palette().color(QPalette::Window).lightness() > 200);
        RDTwoWindowController preferences;
        const QImage box = preferences.window()->findChild<QCheckBox*>()->grab().toImage();
        QCOMPARE(box.pixelColor(box.width() - 1, 0), QColor(Qt::black));
        QVERIFY(box.pixelColor(0, box.height() / 2).lightness() > 90);  // its edge
        QApplication::setPalette(usual);
    }

    void showsTheStateOfEveryButton() {
        ListWindow w({"a"});
        QVERIFY(QTest::qWaitForWindowActive(&w.main.window()));
        for (auto* button : std::initializer_list<QAbstractButton*>{
                 w.ui.addButton, w.ui.switchButton, w.ui.requirePassword, w.ui.settingButton,
                 w.ui.dianjibutton, w.ui.fileListView->topViw()->leftButton()}) {
            w.ui.fileListView->setFocus();
            QList<QImage> looks{button->grab().toImage()};
            QEnterEvent enter({}, {}, {});
            QCoreApplication::sendEvent(button, &enter);
            button->setAttribute(Qt::WA_UnderMouse);
            looks << button->grab().toImage();
            button->setDown(true);
            looks << button->grab().toImage();
            button->setDown(false);
            button->setFocus();
            looks << button->grab().toImage();
            button->setEnabled(false);
            looks << button->grab().toImage();
            for (int look = 0; look < looks.size(); ++look) {
                QVERIFY2(looks.indexOf(looks.at(look)) == look, qPrintable(button->objectName()));
            }
        }
    }
};

int main(int argc, char** argv) {
    return run<ControlsTest>(argc, argv);
}

#include "controls_test.moc"
