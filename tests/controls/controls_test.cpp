#include <cstdlib>

#include <QTest>

#include "controls/rd_custom_button.h"
#include "controls/rd_ns_view.h"
#include "controls/wrap_label.h"
#include "platform/application.h"
#include "platform/bundle.h"

class ControlsTest final : public QObject {
    Q_OBJECT

private slots:
    void makesTheSameNoiseEveryTime() {
        const QImage tile = RDNSView::createNoiseImageRefWithWidth(128, 128, 0.5F);
        std::srand(124);
        for (int y = 0; y < 128; ++y) {
            for (int x = 0; x < 128; ++x) {
                const int expected = static_cast<int>(static_cast<float>(std::rand() % 256) * 0.5F);
                QCOMPARE(static_cast<int>(tile.constScanLine(y)[x]), expected);
            }
        }
        QCOMPARE(RDNSView::createNoiseImageRefWithWidth(128, 128, 0.5F), tile);
        QVERIFY(RDNSView::createNoiseImageRefWithWidth(0, 5, 1).isNull());
        RDNSView view;
        view.setGrain(0.5F);
        QCOMPARE(view.noisePattern(), tile);
        QCOMPARE(view.grain(), 0.0F);
    }

    void brightensTheFillFromTheBottomLeftCorner() {
        RDNSView view;
        view.resize(200, 300);
        const QImage picture = view.grab().toImage();
        const int scale = static_cast<int>(picture.devicePixelRatio());
        for (const QPoint at : {QPoint(0, 299), QPoint(3, 172), QPoint(130, 171), QPoint(199, 0)}) {
            const int fromBottom = (300 - 1 - at.y()) % 128;
            const int noise = view.noisePattern().constScanLine(127 - fromBottom)[at.x() % 128];
            QCOMPARE(picture.pixelColor(at * scale), QColor(185 + noise, 190 + noise, 197 + noise));
        }
        view.setGrain(0);
        QCOMPARE(view.grab().toImage().pixelColor(7, 7), QColor(185, 190, 197));
        view.setBackgroundColor(Qt::red);
        QCOMPARE(view.grab().toImage().pixelColor(7, 7), QColor(Qt::red));
    }

    void picturesAreSharpAtEveryScale() {
        const QIcon icon = Bundle::imageNamed("search");
        const QImage plain = icon.pixmap(QSize(20, 20), 1.0).toImage();
        const QImage fine = icon.pixmap(QSize(20, 20), 2.0).toImage();
        QCOMPARE(plain.size(), QSize(20, 20));
        QCOMPARE(fine.size(), QSize(40, 40));
        QVERIFY(fine.scaled(20, 20).scaled(40, 40) != fine);
        QVERIFY(Bundle::imageNamed("no such picture").isNull());
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
    }

    void keepsOnAndStateApart() {
        RdCustomButton button;
        QCOMPARE(button.on(), 0);
        button.setState(1);
        QCOMPARE(button.on(), 0);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(button.state(), 0);
        button.setOn(1);
        QCOMPARE(button.state(), 0);
    }
};

int main(int argc, char** argv) {
    Application application(argc, argv);
    ControlsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "controls_test.moc"
