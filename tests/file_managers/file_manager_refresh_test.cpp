#include "platform/file_manager_refresh.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// A script stands in for the program that talks to the file managers and records its calls.
class FileManagerRefreshTest final : public QObject {
    Q_OBJECT

private slots:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        QVERIFY(folder_->isValid());
        QFile script(program());
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write(
            "#!/bin/sh\nexec 2>/dev/null\ncd \"${0%/*}\" || exit\necho \"$#:$1|$2\" >>calls\n"
            "[ -e answer ] && cat answer\n[ -e slow ] && exec sleep 600\nexit 0\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void tellsAtOnceAndTwiceMore() {
        FileManagerRefresh refresh(program());
        refresh.setRepeatAfter(std::chrono::milliseconds(300));
        refresh.itemChanged("/tmp/a b");
        refresh.itemChanged("/tmp/it's");
        refresh.itemChanged("/tmp/a b");
        QCOMPARE(calls(), QStringList());  // nothing waits for the process
        QTRY_COMPARE(calls(), QStringList({"2:/tmp/a b|/tmp/it's"}));
        refresh.itemChanged("/tmp/c");
        QTRY_COMPARE(calls().size(), 6);
        auto all = calls();
        all.sort();
        const QStringList expected{"1:/tmp/c|",     "2:-c|/tmp/c",
                                   "2:-c|/tmp/c",   "2:/tmp/a b|/tmp/it's",
                                   "3:-c|/tmp/a b", "3:-c|/tmp/a b"};
        QCOMPARE(all, expected);
    }

    void namesManagersThatCannotBeReached() {
        FileManagerRefresh refresh(program());
        QSignalSpy changes(&refresh, &FileManagerRefresh::unreachedChanged);
        write("answer", "Caja\tF5\nThunar\tCtrl+H\n");
        refresh.itemChanged("/tmp/a");
        QTRY_COMPARE(changes.size(), 1);
        const QList<FileManagerRefresh::Unreached> expected{{"Caja", "F5"}, {"Thunar", "Ctrl+H"}};
        QCOMPARE(refresh.unreached(), expected);
        write("answer", "");
        refresh.itemChanged("/tmp/a");
        QTRY_COMPARE(changes.size(), 2);
        QVERIFY(refresh.unreached().isEmpty());
    }

    void goesOnWithoutTheProgram() {
        FileManagerRefresh refresh(program() + "-missing");
        refresh.itemChanged("/tmp/a");
        QCoreApplication::processEvents();
        QVERIFY(QFile::rename(program(), program() + "-missing"));
        refresh.itemChanged("/tmp/b");
        QTRY_COMPARE(calls(), QStringList({"1:/tmp/b|"}));
    }

    void whatIsLeftIsToldAfterTheEnd() {
        write("slow", "");
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
        QTRY_COMPARE(calls().size(), 3);
        auto left = calls().mid(1);
        left.sort();
        QCOMPARE(left, QStringList({"2:/tmp/b|/tmp/a", "5:-c|-w"}));
    }

    void tellsEachFolderOfVeryManyItems() {
        FileManagerRefresh refresh(program());
        for (int number = 0; number < 100000; ++number)
            refresh.itemChanged(QString("/tmp/%1/%2").arg(number % 2).arg(number));
        QTRY_COMPARE(calls(), QStringList({"2:/tmp/0/0|/tmp/1/1"}));
    }

private:
    QString program() const { return folder_->filePath("refresh"); }

    QStringList calls() const {
        QFile file(folder_->filePath("calls"));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

    void write(const QString& name, const QByteArray& content) const {
        QFile file(folder_->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(FileManagerRefreshTest)
#include "file_manager_refresh_test.moc"
