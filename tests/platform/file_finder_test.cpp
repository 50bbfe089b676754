#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/file_attributes.h"
#include "platform/file_finder.h"

class FileFinderTest final : public QObject {
    Q_OBJECT

private slots:
    void answersLikeALookAtEachPathAndReadsAFolderThatIsAskedAboutOften() {
        const QTemporaryDir folder;
        QFile file(folder.filePath("file ü"));
        QVERIFY(file.open(QIODevice::WriteOnly) && QDir(folder.path()).mkpath("folder/inner"));
        QVERIFY(QFile::link(file.fileName(), folder.filePath("link")));
        QVERIFY(QFile::link(folder.filePath("gone"), folder.filePath("dangling")));
        FileFinder finder(100);
        FileFinder few(0);
        // Before the folder is read, and after it was.
        for (int round = 0; round < 5; ++round) {
            for (const QString name : {"file ü", "folder", "link", "dangling", "missing", ".", "..",
                                       "", "folder/", "file ü/", "folder/inner", "/relative"}) {
                const QString path = name.startsWith('/') ? name.mid(1) : folder.filePath(name);
                QVERIFY2(finder.exists(path) == fileExists(path), qPrintable(path));
                QCOMPARE(few.exists(path), fileExists(path));
            }
            QVERIFY(!finder.exists(folder.filePath(QString(5000, 'x'))));
        }
        QVERIFY(file.remove());
        QVERIFY(finder.exists(file.fileName()));
        // Not a folder of far more names than questions.
        QVERIFY(!few.exists(file.fileName()));
    }
};

QTEST_GUILESS_MAIN(FileFinderTest)
#include "file_finder_test.moc"
