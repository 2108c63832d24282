// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "userfolder.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace HostDialogs;

Q_DECLARE_METATYPE(HostDialogs::Refusal)

namespace {

const QStringList Json{QStringLiteral(".json")};

void write(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{}");
}

/// Permissions bind nobody who is root: while it lives, the question what may be done is asked for
/// somebody else.
class AnybodysUser
{
public:
    explicit AnybodysUser(const QString& folder)
    {
        allow(folder, 0755);
        if (::getuid() == 0 && ::setresuid(65534, 0, 0) != 0)
            qFatal("no other user");
    }
    ~AnybodysUser()
    {
        if (::geteuid() == 0 && ::setresuid(0, 0, 0) != 0)
            qFatal("no way back");
    }
    AnybodysUser(const AnybodysUser&) = delete;
    AnybodysUser& operator=(const AnybodysUser&) = delete;

    bool allow(const QString& path, mode_t mode) const
    {
        return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
    }
};

QString made(const QString& folder)
{
    QDir().mkpath(folder + QLatin1String("/sub/deep"));
    return folder;
}

/// A user-data folder with everything in it that somebody could put there to lead a browser out.
struct HostileFolder
{
    HostileFolder()
        : base(QFileInfo(folder.path()).canonicalFilePath())
        , root(base + QLatin1String("/user"))
        , outside(base + QLatin1String("/outside"))
        , user(made(root))
    {
        for (const char* name : {"user/.app", "user/.host", "outside/inner", "userland"})
            QDir(base).mkpath(QLatin1String(name));
        for (const char* name :
             {"user/a.json", "user/B.JSON", "user/c.mpwv", "user/.hidden.json", "user/.app/x.json",
              "user/sub/s.json", "outside/secret.json", "userland/near.json"})
            write(base + QLatin1Char('/') + QLatin1String(name));
        link("../outside/secret.json", "out.json");
        link("../outside", "outdir");
        link("../userland", "neardir");
        link("/etc/passwd", "passwd.json");
        link("/", "all");
        link("..", "up");
        link("a.json", "alias.json");
        link("sub", "subalias");
        link(".", "self");
        link(".app", "app");
        link("loop.json", "loop.json");
        link("nowhere.json", "broken.json");
        link("../outside/new.json", "tobe.json");
        link("outdir/../user/sub", "round");
        ::mkfifo(qPrintable(root + QLatin1String("/pipe.json")), 0600);
        QDir(root).mkdir(QStringLiteral("folder.json"));
    }

    void link(const char* target, const char* name) const
    {
        const QByteArray path = QFile::encodeName(root) + '/' + name;
        if (::symlink(target, path.constData()) != 0)
            qFatal("link %s", name);
    }

    QStringList names(const QString& below, const QStringList& suffixes = Json) const
    {
        QVector<FileEntry> entries = user.entries(root + below, suffixes);
        sortByName(entries);
        QStringList list;
        for (const FileEntry& entry : entries)
            list.append(entry.folder ? entry.name + QLatin1Char('/') : entry.name);
        return list;
    }

    QTemporaryDir folder;
    QString base;
    QString root;
    QString outside;
    UserFolder user;
};

} // namespace

class TestUserFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m = std::make_unique<HostileFolder>(); }
    void cleanup() { m.reset(); }

    void listsWhatLiesInside();
    void listsNothingOutside_data();
    void listsNothingOutside();
    void filtersSuffixes();
    void showsOddNames();
    void findsTheNearestFolder_data();
    void findsTheNearestFolder();
    void opens_data();
    void opens();
    void saves_data();
    void saves();
    void refusesAReadOnlyFolder();
    void refusesAReadOnlyFile();
    void refusesWhatHasBeenReplaced();
    void makesFolders_data();
    void makesFolders();
    void whateverIsAskedForStaysInside();
    void aMissingFolderHoldsNothing();
    void sorts();

private:
    std::unique_ptr<HostileFolder> m;
};

void TestUserFolder::listsWhatLiesInside()
{
    QCOMPARE(m->names(QString()),
             QStringList({QStringLiteral("folder.json/"), QStringLiteral("round/"),
                          QStringLiteral("self/"), QStringLiteral("sub/"),
                          QStringLiteral("subalias/"), QStringLiteral("a.json"),
                          QStringLiteral("alias.json"), QStringLiteral("B.JSON")}));
    QCOMPARE(m->names(QStringLiteral("/sub")),
             QStringList({QStringLiteral("deep/"), QStringLiteral("s.json")}));
}

void TestUserFolder::listsNothingOutside_data()
{
    QTest::addColumn<QString>("below");
    for (const char* below :
         {"/..", "/../outside", "/outdir", "/outdir/inner", "/all", "/up", "/neardir", "/.app",
          "/app", "/.host", "/sub/../..", "/nowhere", "/a.json", "/../userland", "land"})
        QTest::newRow(below) << QString::fromLatin1(below);
}

void TestUserFolder::listsNothingOutside()
{
    QFETCH(QString, below);
    QCOMPARE(m->names(below, {}), QStringList());
    QVERIFY(!m->user.contains(m->root + below) || QFileInfo(m->root + below).isFile());
}

void TestUserFolder::filtersSuffixes()
{
    QVERIFY(m->names(QString(), {QStringLiteral(".mpwv")}).contains(QStringLiteral("c.mpwv")));
    QVERIFY(!m->names(QString()).contains(QStringLiteral("c.mpwv")));
    QVERIFY(m->names(QString(), {}).contains(QStringLiteral("c.mpwv")));
    QVERIFY(!m->names(QString(), {}).contains(QStringLiteral("pipe.json")));
}

void TestUserFolder::showsOddNames()
{
    const QByteArray folder = QFile::encodeName(m->root) + "/sub/";
    const QByteArray longest = QByteArray(250, 'l') + ".json";
    for (const QByteArray& name : {QByteArray("new\nline.json"), QByteArray("\xff\xfe.json"),
                                   QByteArray("\xd7\xa9\xd7\x9c.json"), longest}) {
        QFile file;
        const int handle = ::open((folder + name).constData(), O_CREAT | O_WRONLY, 0600);
        QVERIFY(handle >= 0);
        ::close(handle);
    }
    const QVector<FileEntry> entries = m->user.entries(m->root + QLatin1String("/sub"), Json);
    QCOMPARE(entries.size(), 6);
    int unreachable = 0;
    for (const FileEntry& entry : entries) {
        QString path;
        if (entry.folder)
            continue;
        const Refusal refusal = m->user.mayOpen(m->root + QLatin1String("/sub"), entry.name, path);
        QCOMPARE(refusal, entry.reachable ? Refusal::None : Refusal::Unreadable);
        unreachable += entry.reachable ? 0 : 1;
    }
    QCOMPARE(unreachable, 1);
    // Qt, which cannot name it, cannot delete it.
    QCOMPARE(::unlink((folder + "\xff\xfe.json").constData()), 0);
}

void TestUserFolder::findsTheNearestFolder_data()
{
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("nearest");
    const auto row = [](const char* below, const char* nearest) {
        QTest::newRow(below) << QString::fromLatin1(below) << QString::fromLatin1(nearest);
    };
    row("", "");
    row("/", "");
    row("/sub/deep", "/sub/deep");
    row("/sub/gone/too", "/sub");
    row("/sub/s.json", "/sub");
    row("/subalias", "/sub");
    row("/self/self/sub", "/sub");
    row("/..", "");
    row("/outdir/inner", "");
    row("/.app", "");
    row("/app", "");
    row("/../outside", "");
}

void TestUserFolder::findsTheNearestFolder()
{
    QFETCH(QString, below);
    QFETCH(QString, nearest);
    QCOMPARE(m->user.nearestFolder(m->root + below), m->root + nearest);
    QCOMPARE(m->user.nearestFolder(QString()), m->root);
    QCOMPARE(m->user.nearestFolder(QStringLiteral("sub")), m->root);
}

void TestUserFolder::opens_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Refusal>("refusal");
    const auto row = [](const char* name, Refusal refusal) {
        QTest::newRow(name) << QString::fromLatin1(name) << refusal;
    };
    row("a.json", Refusal::None);
    row("alias.json", Refusal::None);
    row("gone.json", Refusal::Gone);
    row("out.json", Refusal::Outside);
    row("passwd.json", Refusal::Outside);
    row("loop.json", Refusal::Outside);
    row("broken.json", Refusal::Outside);
    row("../outside/secret.json", Refusal::Outside);
    row("/etc/passwd", Refusal::Outside);
    row("..", Refusal::Outside);
    row("", Refusal::Outside);
    row(".hidden.json", Refusal::Outside);
    row("folder.json", Refusal::IsFolder);
    row("pipe.json", Refusal::NoFile);
}

void TestUserFolder::opens()
{
    QFETCH(QString, name);
    QFETCH(Refusal, refusal);
    QString path;
    QCOMPARE(m->user.mayOpen(m->root, name, path), refusal);
    QCOMPARE(path, refusal == Refusal::None ? m->root + QLatin1String("/a.json") : QString());
    QVERIFY((refusal == Refusal::None) == refusalText(refusal, name).isEmpty());
}

void TestUserFolder::saves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Refusal>("refusal");
    const auto row = [](const char* name, Refusal refusal) {
        QTest::newRow(name) << QString::fromLatin1(name) << refusal;
    };
    row("new.json", Refusal::None);
    row("a.json", Refusal::None);
    row("out.json", Refusal::Outside);
    row("tobe.json", Refusal::Outside);
    row("broken.json", Refusal::Outside);
    row("loop.json", Refusal::Outside);
    row("folder.json", Refusal::IsFolder);
    row("sub", Refusal::IsFolder);
    row("pipe.json", Refusal::NoFile);
    row("../outside/x.json", Refusal::BadName);
    row("..", Refusal::BadName);
    row(".app", Refusal::BadName);
    row("", Refusal::BadName);
}

void TestUserFolder::saves()
{
    QFETCH(QString, name);
    QFETCH(Refusal, refusal);
    QString path;
    QCOMPARE(m->user.maySave(m->root, name, path), refusal);
    QCOMPARE(path, refusal == Refusal::None ? m->root + QLatin1Char('/') + name : QString());
}

void TestUserFolder::refusesAReadOnlyFolder()
{
    const AnybodysUser nobody(m->base);
    const QString sub = m->root + QLatin1String("/sub");
    QString path;
    QVERIFY(nobody.allow(sub, 0777));
    QCOMPARE(m->user.maySave(sub, QStringLiteral("x.json"), path), Refusal::None);
    path.clear();
    QVERIFY(nobody.allow(sub, 0555));
    QCOMPARE(m->user.maySave(sub, QStringLiteral("x.json"), path), Refusal::FolderReadOnly);
    QCOMPARE(m->user.makeFolder(sub, QStringLiteral("x")), Refusal::FolderReadOnly);
    QVERIFY(path.isEmpty());
    QVERIFY(nobody.allow(sub, 0777));
}

void TestUserFolder::refusesAReadOnlyFile()
{
    const AnybodysUser nobody(m->base);
    const QString file = m->root + QLatin1String("/a.json");
    QString path;
    QVERIFY(nobody.allow(m->root, 0777) && nobody.allow(file, 0666));
    QCOMPARE(m->user.maySave(m->root, QStringLiteral("a.json"), path), Refusal::None);
    QVERIFY(nobody.allow(file, 0444));
    QCOMPARE(m->user.maySave(m->root, QStringLiteral("a.json"), path), Refusal::FileReadOnly);
    QVERIFY(nobody.allow(file, 0222));
    QCOMPARE(m->user.mayOpen(m->root, QStringLiteral("a.json"), path), Refusal::Unreadable);
}

void TestUserFolder::refusesWhatHasBeenReplaced()
{
    QString path;
    const QString sub = m->root + QLatin1String("/sub");
    QVERIFY(QFile::remove(sub + QLatin1String("/s.json")));
    QVERIFY(
        QFile::link(m->outside + QLatin1String("/secret.json"), sub + QLatin1String("/s.json")));
    QCOMPARE(m->user.mayOpen(sub, QStringLiteral("s.json"), path), Refusal::Outside);

    QVERIFY(QDir(sub).removeRecursively());
    QVERIFY(QFile::link(m->outside, sub));
    QCOMPARE(m->user.mayOpen(sub, QStringLiteral("secret.json"), path), Refusal::Outside);
    QCOMPARE(m->user.maySave(sub, QStringLiteral("new.json"), path), Refusal::Outside);
    QCOMPARE(m->user.makeFolder(sub, QStringLiteral("new")), Refusal::Outside);
    QVERIFY(path.isEmpty());
}

void TestUserFolder::makesFolders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Refusal>("refusal");
    QTest::newRow("new") << QStringLiteral("new") << Refusal::None;
    QTest::newRow("there already") << QStringLiteral("sub") << Refusal::Exists;
    QTest::newRow("link") << QStringLiteral("broken.json") << Refusal::Exists;
    QTest::newRow("path") << QStringLiteral("x/y") << Refusal::BadName;
    QTest::newRow("up") << QStringLiteral("..") << Refusal::BadName;
    QTest::newRow("hidden") << QStringLiteral(".x") << Refusal::BadName;
}

void TestUserFolder::makesFolders()
{
    QFETCH(QString, name);
    QFETCH(Refusal, refusal);
    QCOMPARE(m->user.makeFolder(m->root, name), refusal);
    if (refusal == Refusal::None)
        QVERIFY(QFileInfo(m->root + QLatin1Char('/') + name).isDir());
}

// Whatever folder and name: an allowed path is inside, and links lead nowhere else.
void TestUserFolder::whateverIsAskedForStaysInside()
{
    const QStringList folders{QString(),
                              QStringLiteral("/sub"),
                              QStringLiteral("/self"),
                              QStringLiteral("/outdir"),
                              QStringLiteral("/up"),
                              QStringLiteral("/all"),
                              QStringLiteral("/.."),
                              QStringLiteral("/neardir"),
                              QStringLiteral("/round"),
                              QStringLiteral("/subalias/deep")};
    const QStringList pieces{
        QStringLiteral("a.json"),     QStringLiteral("out.json"),   QStringLiteral("tobe.json"),
        QStringLiteral("new"),        QStringLiteral(".."),         QStringLiteral("/"),
        QStringLiteral("alias.json"), QStringLiteral("user"),       QStringLiteral("\n"),
        QStringLiteral("etc/passwd"), QStringLiteral("secret.json")};
    QRandomGenerator random(41);
    int allowed = 0;
    for (int round = 0; round < 5000; ++round) {
        QString name;
        for (int i = random.bounded(3); i >= 0; --i)
            name += pieces.at(random.bounded(pieces.size()));
        const QString folder = m->root + folders.at(random.bounded(folders.size()));
        for (const bool save : {false, true}) {
            QString path;
            const Refusal refusal =
                save ? m->user.maySave(folder, name, path) : m->user.mayOpen(folder, name, path);
            QCOMPARE(refusal == Refusal::None, !path.isEmpty());
            if (path.isEmpty())
                continue;
            ++allowed;
            QVERIFY2(path.startsWith(m->root + QLatin1Char('/')), qPrintable(path));
            QCOMPARE(QDir::cleanPath(path), path);
            QVERIFY(!QFileInfo(path).isSymLink());
            QVERIFY(m->user.contains(QFileInfo(path).path()));
        }
    }
    QVERIFY(allowed > 100);
}

void TestUserFolder::aMissingFolderHoldsNothing()
{
    const UserFolder missing(m->base + QLatin1String("/missing"));
    QString path;
    QVERIFY(missing.root().isEmpty());
    QVERIFY(!missing.contains(m->root));
    QVERIFY(missing.entries(m->root, {}).isEmpty());
    QVERIFY(missing.mayOpen(m->root, QStringLiteral("a.json"), path) != Refusal::None);
    QVERIFY(missing.maySave(m->root, QStringLiteral("x.json"), path) != Refusal::None);
    QVERIFY(missing.nearestFolder(m->root).isEmpty());
}

void TestUserFolder::sorts()
{
    const QDateTime noon(QDate(2026, 1, 1), QTime(12, 0));
    QVector<FileEntry> entries{{QStringLiteral("p10"), false, 1, noon, true},
                               {QStringLiteral("p2"), false, 1, noon.addSecs(5), true},
                               {QStringLiteral("z"), true, 1, noon.addSecs(-5), true},
                               {QStringLiteral("P3"), false, 1, noon.addSecs(9), true}};
    const auto names = [&entries] {
        QStringList list;
        for (const FileEntry& entry : entries)
            list.append(entry.name);
        return list.join(QLatin1Char(' '));
    };
    sortByName(entries);
    QCOMPARE(names(), QStringLiteral("z p2 P3 p10"));
    sortByDate(entries);
    QCOMPARE(names(), QStringLiteral("z P3 p2 p10"));
}

QTEST_GUILESS_MAIN(TestUserFolder)

#include "test_userfolder.moc"
