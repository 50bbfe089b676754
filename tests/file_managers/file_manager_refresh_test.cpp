#include "platform/file_manager_refresh.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "../support/files.h"

/// A script stands in for the program that talks to the file managers and records what it reads,
/// a line for each call.
class FileManagerRefreshTest final : public QObject {
    Q_OBJECT

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        QVERIFY(folder_->isValid());
        write(program(),
              "#!/bin/sh\nexec 2>/dev/null\ncd \"${0%/*}\" || exit\n"
              "items=$(tr '\\0\\n' '|/')\necho \"$#$items\" >>calls\n"
              "[ -e answer ] && cat answer\n[ -e slow ] && exec sleep 600\nexit 0\n");
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::ExeOwner);
    }

    void tellsWhatChangedInOneTurnTogether() {
        FileManagerRefresh refresh(program() + "-missing");
        refresh.itemChanged("/tmp/lost");
        QCoreApplication::processEvents();
        QVERIFY(QFile::rename(program(), program() + "-missing"));
        refresh.itemChanged("/tmp/a b");
        refresh.itemChanged(QString::fromUtf8("/tmp/é\n"));
        QCOMPARE(calls(), QStringList());  // nothing waits for the process
        QTRY_COMPARE(calls(), QStringList({QString::fromUtf8("0/tmp/a b|/tmp/é/|")}));
        for (int number = 0; number < 100000; ++number) {
            refresh.itemChanged(QString("/tmp/%1").arg(number));
        }
        QTRY_COMPARE(calls().size(), 2);
        QCOMPARE(calls().last().count('|'), 100000);
    }

    void namesManagersThatCannotBeReached() {
        FileManagerRefresh refresh(program());
        QSignalSpy changes(&refresh, &FileManagerRefresh::unreachedChanged);
        const QList<FileManagerRefresh::Unreached> both{{"Caja", "F5"}, {"Thunar", "Ctrl+H"}};
        for (const auto& expected : {both, QList<FileManagerRefresh::Unreached>()}) {
            write(folder_->filePath("answer"),
                  expected.isEmpty() ? "" : "Caja\tF5\nThunar\tCtrl+H\n");
            refresh.itemChanged("/tmp/a");
            QTRY_COMPARE(changes.size(), expected.isEmpty() ? 2 : 1);
            QCOMPARE(refresh.unreached(), expected);
        }
    }

    void whatIsLeftIsToldAfterTheEnd() {
        write(folder_->filePath("slow"), "");
        QElapsedTimer timer;
        {
            FileManagerRefresh refresh(program());
            refresh.itemChanged("/tmp/a");
            QTRY_COMPARE(calls().size(), 1);
            QVERIFY(QFile::remove(folder_->filePath("slow")));
            refresh.itemChanged("/tmp/b");
            timer.start();
        }
        QVERIFY(timer.elapsed() < 5000);
        QTRY_COMPARE(calls().size(), 2);
        QCOMPARE(calls().last(), "0/tmp/b|/tmp/a|");
    }

private:
    QString program() const { return folder_->filePath("refresh"); }

    QStringList calls() const {
        const QByteArray content = contentOf(folder_->filePath("calls"));
        return QString::fromUtf8(content).split('\n', Qt::SkipEmptyParts);
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(FileManagerRefreshTest)
#include "file_manager_refresh_test.moc"
