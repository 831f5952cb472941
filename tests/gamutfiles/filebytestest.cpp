// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/filebytes.h>

#include <QtTest>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <cstdio>
#include <limits>
#include <thread>

using namespace gamutfiles;

class FileBytesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsAnySize_data();
    void readsAnySize();
    void takesNoMoreMemoryThanTheFile();
    void refusals();
    void permission();
    void devices();
    void namedPipes();
    void standardInput();
    void writes();
    void writingFails();
    void writesToANamedPipeThatIsRead();
    void anyMaximumIsTaken();

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QString write(const char *name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

constexpr int maximum = 300 * 1024;

QString messageFor(const QString &fileName)
{
    const auto bytes = readBytes(fileName, maximum);
    return bytes ? QStringLiteral("taken") : bytes.error();
}

} // namespace

void FileBytesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString FileBytesTest::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", name);
    }
    return file.fileName();
}

void FileBytesTest::readsAnySize_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 65535, 65536, 65537, 131072, 200000, maximum - 1, maximum}) {
        QTest::newRow(qPrintable(QString::number(size))) << size;
    }
}

void FileBytesTest::readsAnySize()
{
    QFETCH(int, size);
    QByteArray content(size, '\0');
    for (int i = 0; i < size; ++i) {
        content[i] = char(i % 251);
    }
    const auto bytes = readBytes(write("file", content), maximum);
    QVERIFY2(bytes, qPrintable(bytes.error()));
    QVERIFY(*bytes == content);
}

void FileBytesTest::takesNoMoreMemoryThanTheFile()
{
    const auto bytes = readBytes(write("file", QByteArray(1000, 'x')), 32 * 1024 * 1024);
    QVERIFY(bytes);
    QVERIFY2(bytes->capacity() < 100 * 1024, qPrintable(QString::number(bytes->capacity())));
}

// In this program's words: those of the system are in the language of its locale.
void FileBytesTest::refusals()
{
    QCOMPARE(messageFor(m_folder->path()), QStringLiteral("is a folder"));
    QCOMPARE(messageFor(path("none")), QStringLiteral("cannot be read: there is no such file"));
    QCOMPARE(messageFor(path("no/such")), QStringLiteral("cannot be read: there is no such file"));
    QCOMPARE(messageFor(write("file", "x") + "/below"), QStringLiteral("cannot be read: there is no such file"));
    QCOMPARE(messageFor(QString()), QStringLiteral("cannot be read: there is no such file"));
    QCOMPARE(messageFor(write("large", QByteArray(maximum + 1, 'x'))), QStringLiteral("is larger than 300 KiB"));
}

void FileBytesTest::permission()
{
#ifdef Q_OS_LINUX
    const QString name = write("secret", "x");
    QVERIFY(QFile::setPermissions(name, QFileDevice::Permissions()));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFileDevice::Permissions(0x5755)));
    // Root may read and write everything: for this test it is another user.
    constexpr uid_t nobody = 65534;
    const bool isRoot = ::geteuid() == 0;
    QVERIFY(!isRoot || ::setresuid(nobody, nobody, 0) == 0);
    const QString reading = messageFor(name);
    const QString writing = writeBytes("x", name);
    const QString creating = writeBytes("x", isRoot ? path("new") : QStringLiteral("/proc/new"));
    QVERIFY(!isRoot || ::setresuid(0, 0, 0) == 0);
    QCOMPARE(reading, QStringLiteral("cannot be read: permission denied"));
    QCOMPARE(writing, QStringLiteral("permission denied"));
    QCOMPARE(creating, QStringLiteral("permission denied"));
#endif
}

void FileBytesTest::devices()
{
#ifdef Q_OS_UNIX
    const auto nothing = readBytes(QStringLiteral("/dev/null"), maximum);
    QVERIFY(nothing && nothing->isEmpty());
    QCOMPARE(messageFor(QStringLiteral("/dev/zero")), QStringLiteral("is larger than 300 KiB"));
#endif
}

// Opening one waits until a program opens its other end, which may be never.
void FileBytesTest::namedPipes()
{
#ifdef Q_OS_UNIX
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    const QString refused
        = QStringLiteral("cannot be read: it is a pipe, which may never end; its content is read from standard input, "
                         "named -");
    QCOMPARE(messageFor(path("pipe")), refused);
    QVERIFY(QFile::link(path("pipe"), path("link")));
    QCOMPARE(messageFor(path("link")), refused);
    QCOMPARE(writeBytes("x", path("pipe")), QStringLiteral("it is a pipe from which no program reads"));

    // The pipes of a shell are open already.
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    QCOMPARE(::write(ends[1], "piped", 5), ssize_t(5));
    ::close(ends[1]);
    const auto bytes = readBytes(QStringLiteral("/dev/fd/%1").arg(ends[0]), maximum);
    ::close(ends[0]);
    QVERIFY2(bytes, qPrintable(bytes.error()));
    QCOMPARE(*bytes, QByteArray("piped"));
#endif
}

void FileBytesTest::standardInput()
{
    QVERIFY(isStandardInput(QStringLiteral("-")));
    QVERIFY(!isStandardInput(QStringLiteral("./-")));
    QVERIFY(!isStandardInput(QString()));
    const QByteArray content = QByteArray("input\n").repeated(30000);
    QVERIFY(std::freopen(QFile::encodeName(write("input", content)).constData(), "rb", stdin));
    const auto bytes = readBytes(QStringLiteral("-"), maximum);
    QVERIFY2(bytes, qPrintable(bytes.error()));
    QVERIFY(*bytes == content);
    std::rewind(stdin);
    QCOMPARE(readBytes(QStringLiteral("-"), 1024).error(), QStringLiteral("is larger than 1 KiB"));
}

void FileBytesTest::writes()
{
    QCOMPARE(writeBytes("first", path("file")), QString());
    QCOMPARE(writeBytes("second", path("file")), QString());
    QCOMPARE(*readBytes(path("file"), maximum), QByteArray("second"));
}

void FileBytesTest::writingFails()
{
    QCOMPARE(writeBytes("x", m_folder->path()), QStringLiteral("it is a folder"));
    QCOMPARE(writeBytes("x", path("no/such")), QStringLiteral("there is no such folder"));
    QCOMPARE(writeBytes("x", write("file", "y") + "/below"), QStringLiteral("there is no such folder"));
#ifdef Q_OS_LINUX
    QCOMPARE(writeBytes("x", QStringLiteral("/dev/full")), QStringLiteral("writing failed; the disk may be full"));
#endif
}

void FileBytesTest::writesToANamedPipeThatIsRead()
{
#ifdef Q_OS_UNIX
    const QByteArray name = QFile::encodeName(path("pipe"));
    QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(descriptor >= 0);
    ::fcntl(descriptor, F_SETFL, 0);
    // More than a pipe holds: the writer has to wait for the reader.
    const QByteArray content(maximum, 'x');
    QByteArray received;
    std::thread reader([&] {
        char piece[4096];
        while (received.size() < content.size()) {
            const ssize_t count = ::read(descriptor, piece, sizeof piece);
            if (count > 0) {
                received.append(piece, int(count));
            } else if (count < 0) {
                return;
            }
        }
    });
    const QString error = writeBytes(content, path("pipe"));
    reader.join();
    ::close(descriptor);
    QCOMPARE(error, QString());
    QVERIFY(received == content);
#endif
}

void FileBytesTest::anyMaximumIsTaken()
{
    const QString file = write("file", "four");
    const auto all = readBytes(file, std::numeric_limits<int>::max());
    QVERIFY2(all, qPrintable(all.error()));
    QCOMPARE(*all, QByteArray("four"));
    for (const int least : {0, -1, std::numeric_limits<int>::min()}) {
        QCOMPARE(readBytes(file, least).error(), QStringLiteral("is larger than 0 KiB"));
        QVERIFY(readBytes(write("empty", ""), least));
    }
}

QTEST_GUILESS_MAIN(FileBytesTest)
#include "filebytestest.moc"
