// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "display/filenotes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

namespace gamutviewer {

namespace {

struct NotesText {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::FileNotes)
};

QString shortName(const QString &fileName)
{
    return oneLine(QFileInfo(fileName).fileName());
}

//! A block of lines below its title.
void append(QStringList &blocks, const QString &title, const QStringList &lines)
{
    QStringList block(title);
    for (const QString &line : lines) {
        block.append(QStringLiteral("  ") + line);
    }
    blocks.append(block.join(QLatin1Char('\n')));
}

} // namespace

FileNotes &FileNotes::operator+=(const FileNotes &other)
{
    facts += other.facts;
    lists += other.lists;
    return *this;
}

QString fileNotesText(const FileNotes &notes)
{
    QStringList blocks;
    for (int first = 0; first < notes.facts.size();) {
        const QString fileName = notes.facts.at(first).fileName;
        QStringList lines;
        for (; first < notes.facts.size() && notes.facts.at(first).fileName == fileName; ++first) {
            const DisplayFact &fact = notes.facts.at(first).fact;
            lines.append(
                NotesText::tr("%1: %2", "what it is and its value").arg(oneLine(fact.name), oneLine(fact.value)));
        }
        append(blocks, NotesText::tr("%1 says:", "file").arg(shortName(fileName)), lines);
    }
    for (const FileRecognition &list : notes.lists) {
        append(blocks, NotesText::tr("%1 was read as follows:", "file").arg(shortName(list.fileName)),
            list.recognized.text().split(QLatin1Char('\n')));
    }
    return blocks.join(QStringLiteral("\n\n"));
}

} // namespace gamutviewer
