#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/file_attributes.h"
#include "platform/file_finder.h"

class FileFinderTest final : public QObject {
    Q_OBJECT

private slots:
    void answersLikeALookAtEachPath() {
        QStringList paths{QString(),
                          "relative",
                          "/",
                          folder_.path() + '/',
                          folder_.path() + "/" + QString(5000, 'x'),
                          "/nowhere/at all"};
        for (const char* name : {"file", "folder", "link", "dangling", "missing", "Umlaut ü", ".",
                                 "..", "folder/", "file/", "folder/inner"}) {
            paths << folder_.filePath(name);
        }
        // Its folder can be read, and it is longer than the system takes.
        QString longest = folder_.path() + '/';
        while (longest.size() < 4089) {
            longest += "./";
        }
        paths << longest + "Umlaut ü";
        // Before the folders are read, and after they were.
        for (int round = 0; round < 20; ++round) {
            for (const QString& path : paths) {
                QVERIFY2(finder_.exists(path) == fileExists(path), qPrintable(path));
            }
        }
    }

    void readsAFolderThatIsAskedAboutOften() {
        QVERIFY(QFile::remove(folder_.filePath("file")));
        QVERIFY(finder_.exists(folder_.filePath("file")));
        makeFile("later");
        QVERIFY(finder_.exists(folder_.filePath("later")));
        // Not a folder of far more names than questions.
        FileFinder few(0);
        for (int i = 0; i < 50; ++i) {
            QVERIFY(few.exists(folder_.filePath("later")));
        }
        QVERIFY(QFile::remove(folder_.filePath("later")));
        QVERIFY(!few.exists(folder_.filePath("later")));
    }

    void initTestCase() {
        for (const char* name : {"file", "Umlaut ü"}) {
            makeFile(name);
        }
        QVERIFY(QDir(folder_.path()).mkpath("folder/inner"));
        QVERIFY(QFile::link(folder_.filePath("file"), folder_.filePath("link")));
        QVERIFY(QFile::link(folder_.filePath("gone"), folder_.filePath("dangling")));
    }

private:
    void makeFile(const char* name) {
        QFile file(folder_.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir folder_;
    FileFinder finder_{100};
};

QTEST_GUILESS_MAIN(FileFinderTest)
#include "file_finder_test.moc"
