// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "givenfiles.h"

#include "panel/sidepanel.h"

#include <QPlainTextEdit>
#include <QtTest>

using namespace gamutviewer;
using namespace givenfiles;

class FileNotesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void factsAreShown();
    void recognitionIsShown();
    void notesComeAndGoWithTheFiles();
    void notesAreNoMarkup();
};

namespace {

QString shown(const WindowFixture &f)
{
    return f.window->panel()->files()->toPlainText();
}

//! The tabs that have the notes, and where.
std::pair<QTabWidget *, int> tab(const WindowFixture &f)
{
    for (auto *tabs : f.window->panel()->findChildren<QTabWidget *>()) {
        const int index = tabs->indexOf(f.window->panel()->files());
        if (index >= 0) {
            return {tabs, index};
        }
    }
    qFatal("the notes are in no tab");
}

bool hasTab(const WindowFixture &f)
{
    return tab(f).first->isTabVisible(tab(f).second);
}

} // namespace

void FileNotesTest::factsAreShown()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    // The luminance of code 138, 0x8A, is 50 cd/m² * 2^(138 / 32).
    const QByteArray cta = samplefiles::ctaBlock(samplefiles::ctaDataBlock(5, QByteArray("\xC0\x80", 2))
        + samplefiles::ctaDataBlock(6, QByteArray("\x05\x01\x8A\x6A\x02", 5)));
    const QString file = writeFile(
        f.settings, QStringLiteral("hdr.bin"), samplefiles::withExtensions(samplefiles::plainEdid(), {cta}));
    QVERIFY(f.window->openPath(file));
    QVERIFY(hasTab(f));
    const auto [tabs, index] = tab(f);
    tabs->setCurrentIndex(index);
    QCoreApplication::processEvents();
    QVERIFY(f.window->panel()->files()->isVisible());
    QVERIFY2(shown(f).startsWith(QLatin1String("hdr.bin says:\n")), qPrintable(shown(f)));
    const auto facts = readGamutFile(file)->facts;
    QVERIFY(facts.size() > 3);
    for (const DisplayFact &fact : facts) {
        QVERIFY2(shown(f).contains(fact.name + QStringLiteral(": ") + fact.value), qPrintable(fact.name));
    }
    QVERIFY2(shown(f).contains(QString::fromUtf8("993.5 cd/m²")), qPrintable(shown(f)));
    QVERIFY(f.window->panel()->files()->isReadOnly());
}

void FileNotesTest::recognitionIsShown()
{
    WindowFixture f;
    QVERIFY(f.window->closeDocument());
    const QString file = writeFile(f.settings, QStringLiteral("meter.csv"), meter);
    QVERIFY(f.window->openPath(file));
    QVERIFY(hasTab(f));
    QVERIFY2(shown(f).startsWith(QLatin1String("meter.csv was read as follows:\n")), qPrintable(shown(f)));
    for (const QString &line : readGamutFile(file)->measurements.recognized.text().split(QLatin1Char('\n'))) {
        QVERIFY2(shown(f).contains(line), qPrintable(line));
    }
}

void FileNotesTest::notesComeAndGoWithTheFiles()
{
    WindowFixture f;
    QVERIFY(!hasTab(f));
    QVERIFY(f.window->closeDocument());
    QVERIFY(f.window->openPath(monitor(f)));
    {
        const FilesAnswer add(FilesAnswer::Add);
        QVERIFY(f.window->openPath(writeFile(f.settings, QStringLiteral("meter.csv"), meter)));
    }
    const int first = shown(f).indexOf(QLatin1String("monitor.bin says:"));
    const int second = shown(f).indexOf(QLatin1String("\n\nmeter.csv was read as follows:"));
    QVERIFY2(first == 0 && second > first, qPrintable(shown(f)));
    f.document().history()->setClean();
    QVERIFY(f.window->closeDocument());
    QVERIFY(!hasTab(f));
    QVERIFY(shown(f).isEmpty());
}

void FileNotesTest::notesAreNoMarkup()
{
    FileNotes notes;
    notes.facts = {{QStringLiteral("/in/<b>%1.icc"), {QStringLiteral("<i>%2</i>\nname"), QStringLiteral("%1 <u>")}}};
    QCOMPARE(fileNotesText(notes), QStringLiteral("<b>%1.icc says:\n  <i>%2</i>\\u000aname: %1 <u>"));
}

QTEST_MAIN(FileNotesTest)
#include "filenotestest.moc"
