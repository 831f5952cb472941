// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "samplefiles.h"

#include <gamutfiles/iccmemory_p.h>

#include <QtEndian>
#include <QtTest>

using namespace gamutfiles;

/*! \brief What reading a profile takes of memory, counted where it is given. */
class IccMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void enoughForSoundProfiles_data();
    void enoughForSoundProfiles();
    void countsOfADamagedProfile_data();
    void countsOfADamagedProfile();
    void everyCountIsBounded();
};

namespace {

//! \a bytes with \a value instead of the four bytes at \a offset behind the first \a signature after the tag table.
QByteArray withCount(QByteArray bytes, const char *signature, int offset, quint32 value)
{
    char number[4];
    qToBigEndian(value, number);
    const int tagCount = int(qFromBigEndian<quint32>(bytes.constData() + 128));
    return bytes.replace(bytes.indexOf(signature, 132 + 12 * tagCount) + offset, 4, number, 4);
}

QByteArray withDictionary()
{
    return samplefiles::version4Profile([](cmsHPROFILE profile) {
        const cmsHANDLE dictionary = cmsDictAlloc(nullptr);
        cmsDictAddEntry(dictionary, L"DATA_source", L"calib", nullptr, nullptr);
        cmsWriteTag(profile, cmsSigMetaTag, dictionary);
        cmsDictFree(dictionary);
    });
}

} // namespace

void IccMemoryTest::enoughForSoundProfiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("version 2") << samplefiles::version2Profile();
    QTest::newRow("version 4") << samplefiles::version4Profile();
    QTest::newRow("dictionary") << withDictionary();
    QTest::newRow("long name") << samplefiles::version4Profile(
        [](cmsHPROFILE profile) { samplefiles::describe(profile, std::wstring(200000, L'n').c_str()); });
}

void IccMemoryTest::enoughForSoundProfiles()
{
    QFETCH(QByteArray, bytes);
    const IccMemory memory(bytes.size());
    const auto display = readIccDisplay(bytes, memory);
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(!display->gamut.colorGamutName().empty());
    QVERIFY(memory.peak() > 0); // it is this memory that was used
    QVERIFY(memory.peak() <= memory.limit());
    QVERIFY2(memory.refused() == 0, qPrintable(QString::number(memory.refused())));
}

void IccMemoryTest::countsOfADamagedProfile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    // The count of a multi-localized text stands 8 bytes behind the start of its tag.
    QTest::newRow("texts") << withCount(samplefiles::version4Profile(), "mluc", 8, 44000000);
}

// Half a gigabyte would be allocated, if it were given.
void IccMemoryTest::countsOfADamagedProfile()
{
    QFETCH(QByteArray, bytes);
    const IccMemory memory(bytes.size());
    const auto display = readIccDisplay(bytes, memory);
    QVERIFY2(display, qPrintable(display.error()));
    QVERIFY(memory.refused() > 100 * 1024 * 1024);
    QVERIFY(memory.peak() <= memory.limit());
    QVERIFY(memory.limit() < 2 * 1024 * 1024);
}

void IccMemoryTest::everyCountIsBounded()
{
    const QByteArray whole = withDictionary();
    for (int at = 128; at + 4 <= whole.size(); ++at) {
        for (const char *number : {"\xFF\xFF\xFF\xFF", "\x7F\xFF\xFF\xFF", "\x02\x9F\x63\x00", "\x00\x01\x00\x00"}) {
            const QByteArray damaged = QByteArray(whole).replace(at, 4, number, 4);
            const IccMemory memory(damaged.size());
            readIccDisplay(damaged, memory);
            QVERIFY(memory.peak() <= memory.limit());
        }
    }
}

QTEST_GUILESS_MAIN(IccMemoryTest)
#include "iccmemorytest.moc"
