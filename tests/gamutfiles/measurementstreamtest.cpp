// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/latestmeasurements.h>
#include <gamutfiles/measurementstream.h>

#include <QtTest>

Q_DECLARE_METATYPE(gamutfiles::TextEncoding)

using namespace gamutfiles;

namespace {

const QByteArray header = QByteArrayLiteral("name,Y (cd/m2),x,y\n");

//! Everything that can be read of what was fed.
QVector<Measurement> readAll(MeasurementStream &stream)
{
    QVector<Measurement> all;
    while (stream.hasLines()) {
        all += stream.read(100);
    }
    return all;
}

QVector<Measurement> readAll(MeasurementStream &stream, const QByteArray &bytes)
{
    stream.feed(bytes);
    return readAll(stream);
}

QByteArray utf16(const QString &text, bool littleEndian)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const char low = char(c.unicode() & 0xFF);
        const char high = char(c.unicode() >> 8);
        bytes.append(littleEndian ? low : high).append(littleEndian ? high : low);
    }
    return bytes;
}

//! The colours of \a measurements, of which none has been read.
QString unreadIn(const QVector<Measurement> &measurements)
{
    QStringList colors;
    for (const Measurement &measurement : measurements) {
        const bool isUnread = measurement.isUnread && !measurement.color && measurement.luminance == 0.0;
        colors.append(isUnread ? measurementPartName(measurement.part) : QStringLiteral("read"));
    }
    colors.removeDuplicates();
    return colors.join(QLatin1Char(' '));
}

QStringList namesOf(const QVector<Measurement> &measurements)
{
    QStringList names;
    for (const Measurement &measurement : measurements) {
        names.append(measurement.name);
    }
    return names;
}

} // namespace

class MeasurementStreamTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsLinesAsTheyCome();
    void readsTheSameAsAWholeList_data();
    void readsTheSameAsAWholeList();
    void waitsForTheEndOfALine();
    void takesTheLastLineWithoutAnEndWhenNoMoreComes();
    void tellsOfALineWithoutAnEnd_data();
    void tellsOfALineWithoutAnEnd();
    void takesAnyLineEnds();
    void keepsAByteOrderMarkAndItsEncoding_data();
    void keepsAByteOrderMarkAndItsEncoding();
    void decidesTheEncodingByTheFirstLineThatTells();
    void countsLinesThatCannotBeRead();
    void waitsBehindNoUnterminatedQuote_data();
    void waitsBehindNoUnterminatedQuote();
    void saysWhatIsAwaited();
    void tellsCabinetsOfLinesThatAreNotRead();
    void passesOverALineThatIsTooLong();
    void beginsAnewWithAHeader();
    void passesOverWhatPrecedesTheHeader();
    void forgetsLinesThatAreNeverExplained();
    void readsUnitsBelowTheHeader();
    void holdsLinesUntilTheDecimalSignIsKnown();
    void readsAListWithoutAHeader();
    void takesTheHighestLevelAsTheFullOne();
    void heedsTheOptions();
    void tellsTheUnitOfWhatItReads();
    void readsNoMoreLinesThanAsked();
    void needsNoMoreMemoryForMoreLines();
};

void MeasurementStreamTest::readsLinesAsTheyCome()
{
    MeasurementStream stream;
    QVERIFY(!stream.hasLines());
    QVERIFY(readAll(stream, header).isEmpty());
    QVERIFY(!stream.state().waitsFor.text.isEmpty());
    const auto red = readAll(stream, "Red,21.26,0.64,0.33\n");
    QCOMPARE(red.size(), 1);
    QCOMPARE(red.first().name, QStringLiteral("Red"));
    QCOMPARE(red.first().part, MeasurementPart::Red);
    QCOMPARE(red.first().line, 2);
    QCOMPARE(red.first().color->x, 0.64);
    QCOMPARE(red.first().luminance, 21.26);
    QCOMPARE(namesOf(readAll(stream, "# by hand\n\ngrey,3,0.31,0.33\nBlack,0,-,-\n")),
        (QStringList{QStringLiteral("grey"), QStringLiteral("Black")}));
    const MeasurementStreamState &state = stream.state();
    QCOMPARE(state.lines, 6);
    QCOMPARE(state.measurements, 3);
    QCOMPARE(state.notRead, 0);
    QCOMPARE(state.heldLines, 0);
    QVERIFY(state.waitsFor.text.isEmpty());
    QCOMPARE(state.unit, LuminanceUnit::CandelaPerSquareMetre);
    QCOMPARE(state.recognized.headerLine, 1);
    QCOMPARE(state.recognized.separator, QLatin1Char(','));
    QCOMPARE(state.recognized.decimalSign, std::make_optional(QChar(QLatin1Char('.'))));
}

void MeasurementStreamTest::readsTheSameAsAWholeList_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("comma") << header
            + "Red,196.8,0.7031,0.296\nGreen,608.6,0.1954,0.7142\nBlue,123.5,0.1304,0.0798\nWhite,928.9,0.2727,0.3031\n"
              "grey 50 %,203.2,0.2731,0.3036\n";
    QTest::newRow("semicolon") << QByteArray(
        "Patch;Lv (cd/m\xC2\xB2);CIE x;CIE y\r\nRed 100 %;196,8;0,7031;0,2960\r\nWhite 100 %;1.928,9;0,2727;0,3031\r\n"
        "\"Black; off\";0;0;0\r\n");
    QTest::newRow("tab, u'v', foot-lambert")
        << QByteArray("No.\tColour\tu'\tv'\tLuminance (fL)\n1\tRot\t0.45\t0.52\t10\n2\tGr\xC3\xBCn\t0.08\t0.58\t20\n");
    QTest::newRow("tristimulus") << QByteArray("name,X,Y (cd/m2),Z\nR,41.245,21.264,1.932\nW,95.05,100,108.91\n");
    QTest::newRow("windows") << QByteArray(
        "Name;Leuchtdichte (cd/m\xB2);x;y\nWei\xDF;100;0,3127;0,3290\nGr\xFCn;70;0,3;0,6\n");
    QTest::newRow("sep=") << QByteArray("sep=|\nname|Y|x|y\nred|21|0.64|0.33\n");
    QTest::newRow("cabinets") << QByteArray("row,column,name,Y,x,y\n1,2,red,21,0.64,0.33\nA,3,red,22,0.65,0.33\n");
    QTest::newRow("title and units") << QByteArray(
        "Wall of hall 3\nmeasured twice\nname,Y,x,y\n,cd/m2,,\nred,21,0.64,0.33\n");
}

void MeasurementStreamTest::readsTheSameAsAWholeList()
{
    QFETCH(QByteArray, bytes);
    const auto list = readMeasurementList(bytes);
    QVERIFY2(list, qPrintable(list.error()));
    for (const int piece : {1, 2, 7, int(bytes.size())}) {
        MeasurementStream stream;
        QVector<Measurement> all;
        for (int i = 0; i < bytes.size(); i += piece) {
            all += readAll(stream, bytes.mid(i, piece));
        }
        QCOMPARE(all.size(), list->measurements.size());
        for (int i = 0; i < all.size(); ++i) {
            const Measurement &read = all.at(i);
            const Measurement &whole = list->measurements.at(i);
            QCOMPARE(read.name, whole.name);
            QCOMPARE(read.luminance, whole.luminance);
            QCOMPARE(read.line, whole.line);
            QCOMPARE(read.part, whole.part);
            QCOMPARE(read.cabinet, whole.cabinet);
            QCOMPARE(read.row, whole.row);
            QCOMPARE(read.column, whole.column);
            QCOMPARE(read.color.has_value(), whole.color.has_value());
            QVERIFY(!read.color || (read.color->x == whole.color->x && read.color->y == whole.color->y));
        }
        QCOMPARE(stream.state().unit, list->unit);
        QCOMPARE(stream.state().recognized.text().section(QLatin1Char('\n'), 0, 3),
            list->recognized.text().section(QLatin1Char('\n'), 0, 3));
        QCOMPARE(stream.state().notRead, 0);
    }
}

void MeasurementStreamTest::waitsForTheEndOfALine()
{
    MeasurementStream stream;
    QVERIFY(readAll(stream, header + "Red,21.26,0.64,0.3").isEmpty());
    QCOMPARE(stream.state().heldBytes, 18);
    QVERIFY(readAll(stream, "3").isEmpty());
    const auto red = readAll(stream, "\n");
    QCOMPARE(red.size(), 1);
    QCOMPARE(red.first().color->y, 0.33);
    QCOMPARE(stream.state().heldBytes, 0);
}

void MeasurementStreamTest::takesTheLastLineWithoutAnEndWhenNoMoreComes()
{
    MeasurementStream stream;
    QVERIFY(readAll(stream, header + "Red,21.26,0.64,0.33").isEmpty());
    stream.finish();
    QCOMPARE(readAll(stream).size(), 1);
    QVERIFY(!stream.hasLines());

    // What was written while the tool ended may be half a number.
    MeasurementStream cut;
    QVERIFY(readAll(cut, header + "Red,212.6,0.64,0.33\nRed,21").size() == 1);
    cut.finish(MeasurementStream::LastLine::MayBeCutOff);
    QVERIFY(readAll(cut).isEmpty());
    QCOMPARE(cut.unfinished().value_or(UnfinishedMeasurement()).parts, QVector<MeasurementPart>{MeasurementPart::Red});
    QCOMPARE(cut.state().notRead, 1);
    QCOMPARE(cut.state().lastNotRead.message(), QStringLiteral("line 3: has no end, and may be cut off"));

    // What is held is explained by nothing any more.
    MeasurementStream undecided;
    QVERIFY(readAll(undecided, "name;X;Y;Z\nR;41,245;21,264;1,932\n").isEmpty());
    QCOMPARE(undecided.state().heldLines, 1);
    undecided.finish();
    QCOMPARE(unreadIn(readAll(undecided)), QStringLiteral("red"));
    QCOMPARE(undecided.state().notRead, 1);
    QVERIFY(undecided.state().lastNotRead.text.contains(QStringLiteral("state the decimal sign")));
    QCOMPARE(undecided.state().heldLines, 0);
}

void MeasurementStreamTest::tellsOfALineWithoutAnEnd_data()
{
    QTest::addColumn<QByteArray>("columns");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("known");
    const auto row = [](const char *columns, const char *line, const char *known) {
        QTest::newRow(line) << QByteArray(columns) << QByteArray(line) << QString::fromUtf8(known);
    };
    const char *first = "cabinet,name,Y (cd/m2),x,y";
    row(first, "", "nothing");
    row(first, "A2", "red? green? blue? white? black?");
    row(first, "A2,", "A2 red? green? blue? white? black?");
    row(first, "A2,w", "A2 white?");
    row(first, "A2,bl", "A2 blue? white? black?"); // blanc
    row(first, "A2,full ", "A2 red? green? blue? white? black?");
    row(first, "A2,white", "A2 white?");
    row(first, "A2,W 2", "A2 white?");
    row(first, "A2,gris", "A2");
    row(first, "A2,white,", "A2 white");
    row(first, "A2,white,80,0.31,0.3", "A2 white");
    row(first, "A2,\"white,80,0.31,0.3", "A2 white");
    row(first, "A2,grey,80,0.31,0.3", "A2");
    const char *last = "name,Y (cd/m2),x,y,cabinet,row,column";
    row(last, "white,80,0.31,0.3", "white");
    row(last, "white,80,0.31,0.3,A2,1", "white");
    row(last, "white,80,0.31,0.3,A2,1,", "white");
    row(last, "white,80,0.31,0.3,A2,1,2,", "A2 1/2 white");
    row("cabinet,x,y,Y (cd/m2),name", "A2,0.31,0.3,80,white", "A2 white?");
    row(u8"cabinet,name,Y (cd/m²),x,y,remark", u8"箱2,白,80,0.31,0.3,\xE6\xAD", u8"箱2 white");
}

void MeasurementStreamTest::tellsOfALineWithoutAnEnd()
{
    QFETCH(QByteArray, columns);
    QFETCH(QByteArray, line);
    QFETCH(QString, known);
    MeasurementStream stream;
    const QByteArray whole = columns.startsWith("name") ? "red,21,0.64,0.33,A1,1,1\n"
        : columns.endsWith("name")                      ? "A1,0.64,0.33,21,red\n"
                                                        : "A1,red,21,0.64,0.33\n";
    QCOMPARE(readAll(stream, columns + '\n' + whole + line).size(), 1);
    const auto told = [&stream] {
        const auto unfinished = stream.unfinished();
        if (!unfinished) {
            return QStringLiteral("nothing");
        }
        const Measurement &of = unfinished->measurement;
        const CabinetMeasurements cabinet{of.cabinet, of.row, of.column, {}};
        QStringList parts;
        if (unfinished->isCabinetKnown) {
            parts.append(cabinet.label());
        }
        for (const MeasurementPart part : unfinished->parts) {
            parts.append(measurementPartName(part) + (unfinished->isColorKnown ? QString() : QStringLiteral("?")));
        }
        return of.isUnread ? parts.join(QLatin1Char(' ')) : QStringLiteral("read");
    };
    QCOMPARE(told(), known);
    stream.finish(MeasurementStream::LastLine::MayBeCutOff);
    QVERIFY(readAll(stream).isEmpty());
    QCOMPARE(told(), known);
    QCOMPARE(stream.state().notRead, known == QLatin1String("nothing") ? 0 : 1);
}

void MeasurementStreamTest::takesAnyLineEnds()
{
    for (const QByteArray &end : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        MeasurementStream stream;
        QVector<Measurement> all;
        const QByteArray bytes = "name,Y,x,y" + end + "Red,21,0.64,0.33" + end + end + "Blue,7,0.15,0.06" + end;
        for (const char c : bytes) {
            all += readAll(stream, QByteArray(1, c));
        }
        QCOMPARE(all.size(), 2);
        QCOMPARE(all.last().line, 4);
        QCOMPARE(stream.state().lines, 4);
        QCOMPARE(stream.state().notRead, 0);
    }
}

void MeasurementStreamTest::keepsAByteOrderMarkAndItsEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TextEncoding>("encoding");
    const QString text = QString::fromUtf8("名称,Y,x,y\n红,21,0.64,0.33\n蓝,7,0.15,0.06\n");
    const QString mark(QChar(0xFEFF));
    QTest::newRow("UTF-8") << text.toUtf8() << TextEncoding::Utf8;
    QTest::newRow("UTF-8 with a mark") << (mark + text).toUtf8() << TextEncoding::Utf8;
    QTest::newRow("UTF-16LE") << utf16(text, true) << TextEncoding::Utf16LittleEndian;
    QTest::newRow("UTF-16LE with a mark") << utf16(mark + text, true) << TextEncoding::Utf16LittleEndian;
    QTest::newRow("UTF-16BE") << utf16(text, false) << TextEncoding::Utf16BigEndian;
    QTest::newRow("UTF-16BE with a mark") << utf16(mark + text, false) << TextEncoding::Utf16BigEndian;
    QTest::newRow("UTF-16LE after blank lines")
        << utf16(QStringLiteral("\n\n") + text, true) << TextEncoding::Utf16LittleEndian;
}

void MeasurementStreamTest::keepsAByteOrderMarkAndItsEncoding()
{
    QFETCH(QByteArray, bytes);
    QFETCH(TextEncoding, encoding);
    for (const int piece : {1, 3, int(bytes.size())}) {
        MeasurementStream stream;
        QVector<Measurement> all;
        for (int i = 0; i < bytes.size(); i += piece) {
            all += readAll(stream, bytes.mid(i, piece));
        }
        QCOMPARE(stream.state().notRead, 0);
        QCOMPARE(stream.state().recognized.encoding, encoding);
        QCOMPARE(namesOf(all), (QStringList{QString::fromUtf8("红"), QString::fromUtf8("蓝")}));
        QCOMPARE(all.first().part, MeasurementPart::Red);
    }
}

void MeasurementStreamTest::decidesTheEncodingByTheFirstLineThatTells()
{
    MeasurementStream stream;
    readAll(stream, header + "Red,21,0.64,0.33\n");
    QCOMPARE(stream.state().recognized.encoding, TextEncoding::Utf8);
    const auto white = readAll(stream, "Wei\xDF,100,0.3127,0.329\n");
    QCOMPARE(stream.state().recognized.encoding, TextEncoding::Windows1252);
    QCOMPARE(white.value(0).part, MeasurementPart::White);

    // A line in another encoding is one line that is not read.
    MeasurementStream utf8;
    readAll(utf8, header + "Gr\xC3\xBCn,70,0.3,0.6\n");
    QVERIFY(readAll(utf8, "Gr\xFCn,70,0.3,0.6\n").isEmpty());
    QCOMPARE(utf8.state().notRead, 1);
    QCOMPARE(utf8.state().lastNotRead.message(), QStringLiteral("line 3: is not UTF-8 text"));
    QCOMPARE(readAll(utf8, "Gr\xC3\xBCn,70,0.3,0.6\n").size(), 1);
}

void MeasurementStreamTest::waitsBehindNoUnterminatedQuote_data()
{
    QTest::addColumn<QByteArray>("list"); // with a red that cannot be read, or none, and a green in the last line
    QTest::addColumn<QString>("message"); // empty: nothing is refused
    QTest::addColumn<QString>("all");
    // By themselves these lines are divided at commas, and their quotes are characters like others.
    QTest::newRow("measurement") << QByteArray("name;Y;x;y\nRed;\"21,0;0,64;0,33\nGreen;71,5;0,3;0,6\n")
                                 << "line 2: unterminated quote"
                                 << "red read";
    QTest::newRow("above the header") << QByteArray("made for;\"wall 7\nname;Y;x;y\nGreen;71,5;0,3;0,6\n")
                                      << "line 1: unterminated quote"
                                      << "read";
    QTest::newRow("below a title") << QByteArray("Report\nmade for;\"wall 7\nname;Y;x;y\nGreen;71,5;0,3;0,6\n")
                                   << "line 2: unterminated quote"
                                   << "read";
    // These are not open by the separator that the list turns out to have, or closed in the next line.
    QTest::newRow("another separator") << QByteArray("made for;\"wall 7\nname,Y,x,y\nGreen,71.5,0.3,0.6\n") << ""
                                       << "read";
    QTest::newRow("header in two lines") << QByteArray("name;Y;x;\"y\n(CIE)\"\nGreen;71,5;0,3;0,6\n") << ""
                                         << "read";
}

void MeasurementStreamTest::waitsBehindNoUnterminatedQuote()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, message);
    MeasurementStream stream;
    const auto all = readAll(stream, list);
    QTEST(unreadIn(all), "all");
    QCOMPARE(all.last().name, QStringLiteral("Green"));
    QCOMPARE(all.last().luminance, 71.5);
    QCOMPARE(stream.state().lastNotRead.message(), message);
    QCOMPARE(stream.state().heldLines, 0);
}

void MeasurementStreamTest::saysWhatIsAwaited()
{
    MeasurementStream named;
    readAll(named, "sep=;\n");
    QVERIFY(!named.state().waitsFor.text.isEmpty());
    MeasurementStream quoted;
    readAll(quoted, "name;Y;x;y\nRed;\"21,0;0,64;0,33\n");
    QCOMPARE(quoted.state().waitsFor.text, QStringLiteral("unterminated quote"));
    quoted.finish();
    readAll(quoted);
    QCOMPARE(quoted.state().notRead, 2);
    QCOMPARE(quoted.state().lastNotRead.message(), QStringLiteral("line 2: unterminated quote"));
}

void MeasurementStreamTest::countsLinesThatCannotBeRead()
{
    MeasurementStream stream;
    readAll(stream, header + "Red,21,0.64,0.33\n");
    struct Broken {
        QByteArray line;
        QString message;
        QString color; // that is not read
    };
    const Broken broken[] = {
        {"Red,#DIV/0!,0.64,0.33\n", QStringLiteral("line 3, column Y (cd/m2): not a number: \"#DIV/0!\""), "red"},
        {"White,21\n", QStringLiteral("line 4, column x: missing"), "white"},
        {"\"Red,21,0.64,0.33\n", QStringLiteral("line 5: unterminated quote"), "red"},
        {"instrument ready\n", QStringLiteral("line 6: has no numbers"), ""},
        {"Black,21,0.64,0.93\n", QStringLiteral("line 7, column x: x + y must not exceed 1"), "black"},
        {",21,0.64,0.33\n", QStringLiteral("line 8, column name: the name must not be empty"), ""},
        {QByteArray("R\0d,21,0.64,0.33\n", 17), QStringLiteral("line 9: is not UTF-8 text"), ""},
        {"Grey,21,0.64,\n", QStringLiteral("line 10, column y: not a number: \"\""), ""},
        {QByteArray("Blue,21,0.64,0.3\0\n", 18), QStringLiteral("line 11: is not UTF-8 text"), "blue"},
        {"W 255,10O,0.64,0.33\n", QStringLiteral("line 12, column Y (cd/m2): not a number: \"10O\""), "white"},
        {"Green,7" + QByteArray(70000, '7') + '\n', QStringLiteral("line 13: is longer than 64 KiB"), "green"},
    };
    int count = 0;
    for (const auto &[line, message, color] : broken) {
        QCOMPARE(unreadIn(readAll(stream, line)), color);
        QCOMPARE(stream.state().notRead, ++count);
        QCOMPARE(stream.state().lastNotRead.message(), message);
    }
    QCOMPARE(readAll(stream, "Blue,7,0.15,0.06\n").size(), 1);
    QCOMPARE(stream.state().measurements, 2);

    // The first below a header, which still waits for a line
    MeasurementStream first;
    QCOMPARE(unreadIn(readAll(first, header + "\"White,100,0.31,0.32\n")), QStringLiteral("white"));
    QVERIFY(readAll(first, "Schw").isEmpty());
    QCOMPARE(
        first.unfinished().value_or(UnfinishedMeasurement()).parts, QVector<MeasurementPart>{MeasurementPart::Black});
}

void MeasurementStreamTest::tellsCabinetsOfLinesThatAreNotRead()
{
    MeasurementStream stream;
    const auto cabinets = [&stream](const QByteArray &lines) {
        QStringList names;
        for (const Measurement &measurement : readAll(stream, lines)) {
            names.append(measurement.cabinet + (measurement.color ? QStringLiteral(" read") : QString()));
        }
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(cabinets("A1,Red,21,0.64,0.33\ncabinet,name,Y (cd/m2),x,y\nA2,Red,21,0.64,0.33\n"),
        QStringLiteral("A1 A2 read"));
    QCOMPARE(stream.state().notRead, 1);
    QCOMPARE(stream.state().lastNotRead.message(), QStringLiteral("line 1: is above the line that names the columns"));
    QCOMPARE(cabinets("A3,Red,n/a,n/a,n/a\nA4,Red,#DIV/0!,0.64,0.33\nA5,Total,,,\n"), QStringLiteral("A3 A4"));
    QCOMPARE(stream.state().notRead, 4);
    QCOMPARE(stream.state().measurements, 1);
}

void MeasurementStreamTest::passesOverALineThatIsTooLong()
{
    MeasurementStream stream;
    readAll(stream, header + "Red,21,0.64,0.33\n");
    int most = 0;
    for (int i = 0; i < 100; ++i) {
        QVERIFY(readAll(stream, QByteArray(4096, 'x')).isEmpty());
        most = std::max(most, stream.state().heldBytes);
    }
    QVERIFY2(most <= maximumStreamLineBytes + 4096, qPrintable(QString::number(most)));
    QCOMPARE(readAll(stream, "\nBlue,7,0.15,0.06\n").size(), 1);
    QCOMPARE(stream.state().notRead, 1);
    QCOMPARE(stream.state().lastNotRead.message(), QStringLiteral("line 3: is longer than 64 KiB"));
}

void MeasurementStreamTest::beginsAnewWithAHeader()
{
    MeasurementStream stream;
    readAll(stream, header + "Red,21,0.64,0.33\n");
    // The tool was started again, with other settings.
    const auto all = readAll(stream, "Patch;u';v';Lv\nGreen;0,1250;0,5625;70,5\n");
    QCOMPARE(stream.state().notRead, 0);
    QCOMPARE(all.size(), 1);
    QCOMPARE(all.first().part, MeasurementPart::Green);
    QCOMPARE(all.first().line, 4);
    QCOMPARE(all.first().luminance, 70.5);
    QCOMPARE(stream.state().recognized.headerLine, 3);
    QCOMPARE(stream.state().recognized.separator, QLatin1Char(';'));
}

void MeasurementStreamTest::passesOverWhatPrecedesTheHeader()
{
    MeasurementStream stream;
    const auto all = readAll(stream, "Instrument,XR-7,12345\nDate,2026-01-05\n\n" + header + "Red,21,0.64,0.33\n");
    QCOMPARE(namesOf(all), QStringList(QStringLiteral("Red")));
    QCOMPARE(stream.state().notRead, 0);
}

void MeasurementStreamTest::forgetsLinesThatAreNeverExplained()
{
    MeasurementStream stream;
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(readAll(stream, "instrument ready\n").isEmpty());
        QVERIFY(stream.state().heldLines < maximumHeldLines);
    }
    QVERIFY(stream.state().notRead >= 1000 - maximumHeldLines);
    QVERIFY(!stream.state().lastNotRead.text.isEmpty());
    QCOMPARE(readAll(stream, header + "Red,21,0.64,0.33\n").size(), 1);
}

void MeasurementStreamTest::readsUnitsBelowTheHeader()
{
    MeasurementStream stream;
    QVERIFY(readAll(stream, "name,Y,x,y\n").isEmpty());
    QVERIFY(readAll(stream, ",fL,,\n").isEmpty());
    QCOMPARE(stream.state().notRead, 0);
    const auto red = readAll(stream, "Red,1,0.64,0.33\n");
    QCOMPARE(stream.state().recognized.unit, MeasuredUnit::FootLambert);
    QVERIFY(std::abs(red.value(0).luminance - 3.4262590996) < 1e-9);
}

void MeasurementStreamTest::holdsLinesUntilTheDecimalSignIsKnown()
{
    MeasurementStream stream;
    // Whole numbers are the same with either sign.
    QCOMPARE(readAll(stream, "name;X;Y;Z\nK;0;0;0\n").size(), 1);
    QVERIFY(!stream.state().recognized.decimalSign);
    QVERIFY(readAll(stream, "R;41,245;21,264;1,932\n").isEmpty());
    QCOMPARE(stream.state().heldLines, 1);
    QCOMPARE(unreadIn(stream.held()), QStringLiteral("red")); // if nothing more comes
    QVERIFY(stream.state().waitsFor.text.contains(QStringLiteral("state the decimal sign")));
    // A line that has both decides nothing and holds nothing up.
    QCOMPARE(unreadIn(readAll(stream, "R;41.25;21,26;1,93\n")), QStringLiteral("red"));
    QCOMPARE(stream.state().notRead, 1);
    const auto both = readAll(stream, "G;35,76;71,52;11,92\n");
    QCOMPARE(both.size(), 2);
    QCOMPARE(both.first().luminance, 21.264);
    QCOMPARE(both.last().luminance, 71.52);
    QCOMPARE(stream.state().heldLines, 0);
    // From then on the point divides thousands.
    QCOMPARE(readAll(stream, "W;950,5;1.000;1089,1\n").value(0).luminance, 1000.0);

    MeasurementStream never;
    readAll(never, "name;X;Y;Z\n");
    for (int i = 0; i < 3 * maximumHeldLines; ++i) {
        const QString unread = unreadIn(readAll(never, "R;41,245;21,264;1,932\n"));
        QVERIFY2(unread.isEmpty() || unread == QStringLiteral("red"), qPrintable(unread));
        QVERIFY(never.state().heldLines < maximumHeldLines);
    }
    QCOMPARE(never.state().notRead, 3 * maximumHeldLines);
}

void MeasurementStreamTest::readsAListWithoutAHeader()
{
    MeasurementStream stream;
    QCOMPARE(readAll(stream, "Red,21,0.64,0.33\n").size(), 1);
    QCOMPARE(stream.state().recognized.headerLine, 0);
    QCOMPARE(readAll(stream, "Blue,7,0.15,0.06\n").value(0).part, MeasurementPart::Blue);
}

void MeasurementStreamTest::takesTheHighestLevelAsTheFullOne()
{
    MeasurementStream stream;
    readAll(stream, header);
    const auto partOf
        = [&stream](const QByteArray &name) { return readAll(stream, name + ",21,0.64,0.33\n").value(0).part; };
    QCOMPARE(partOf("R 128"), MeasurementPart::None);
    QCOMPARE(partOf("R 255"), MeasurementPart::Red);
    QCOMPARE(partOf("R 100"), MeasurementPart::None);
    QCOMPARE(partOf("G 255"), MeasurementPart::Green);
    QCOMPARE(partOf("B 50 %"), MeasurementPart::None);
    QCOMPARE(partOf("B 100 %"), MeasurementPart::Blue);
    QCOMPARE(stream.state().recognized.fullLevel, std::make_optional(255.0));
}

void MeasurementStreamTest::heedsTheOptions()
{
    MeasurementOptions options;
    options.white.name = QStringLiteral("D65");
    options.red.line = 3;
    options.cabinet = QStringLiteral("b");
    options.unit = MeasuredUnit::Relative;
    options.decimalSign = QLatin1Char(',');
    MeasurementStream stream(options);
    const auto all = readAll(stream,
        "cabinet;name;X;Y;Z\nA;first;1,234;1,234;1,234\nB;first;1,234;1,234;1,234\nB;red;2;1;0\nB;white;1;1;1\n"
        "B;d65;1;1;1\n");
    QCOMPARE(all.size(), 4);
    QCOMPARE(all.at(0).part, MeasurementPart::Red);
    QCOMPARE(all.at(0).luminance, 1.234);
    QCOMPARE(all.at(1).part, MeasurementPart::None);
    QCOMPARE(all.at(2).part, MeasurementPart::None);
    QCOMPARE(all.at(3).part, MeasurementPart::White);
    QCOMPARE(stream.state().unit, LuminanceUnit::Relative);

    MeasurementOptions odd;
    odd.decimalSign = QLatin1Char('!');
    MeasurementStream plain(odd);
    QCOMPARE(readAll(plain, header + "Red,21.5,0.64,0.33\n").size(), 1);
}

void MeasurementStreamTest::tellsTheUnitOfWhatItReads()
{
    MeasurementStream stream;
    stream.feed(header + "Red,21,0.64,0.33\nname,Y (%),x,y\nBlue,7,0.15,0.06\nGreen,70,0.3,0.6\n");
    QCOMPARE(namesOf(stream.read(100)), QStringList(QStringLiteral("Red")));
    QCOMPARE(stream.state().unit, LuminanceUnit::CandelaPerSquareMetre);
    QVERIFY(stream.hasLines());
    QCOMPARE(namesOf(stream.read(100)), (QStringList{QStringLiteral("Blue"), QStringLiteral("Green")}));
    QCOMPARE(stream.state().unit, LuminanceUnit::Relative);
}

void MeasurementStreamTest::readsNoMoreLinesThanAsked()
{
    MeasurementStream stream;
    QByteArray lines = header;
    for (int i = 0; i < 50; ++i) {
        lines += "grey,21,0.31,0.33\n";
    }
    stream.feed(lines);
    qint64 before = 0;
    while (stream.hasLines()) {
        stream.read(7);
        QVERIFY(stream.state().lines - before <= 7);
        before = stream.state().lines;
    }
    QCOMPARE(stream.state().measurements, 50);
}

void MeasurementStreamTest::needsNoMoreMemoryForMoreLines()
{
    // Ten minutes of 1000 lines a second, some of them broken, some of other cabinets, most with a name of their own.
#ifdef CEIECHART_SHORT_TESTS
    constexpr int count = 100000; // of more than mostLatestCabinets
#else
    constexpr int count = 600000;
#endif
    MeasurementStream stream;
    LatestMeasurements latest;
    QByteArray piece = "cabinet,name,Y (cd/m2),x,y\n";
    int mostBytes = 0;
    int mostLines = 0;
    const char *const names[] = {"Red", "Green", "Blue", "White"};
    const char *const colors[] = {",21,0.64,0.33\n", ",71,0.3,0.6\n", ",7,0.15,0.06\n", ",100,0.3127,0.329\n"};
    for (int i = 0; i < count; ++i) {
        piece += QByteArray::number(i / 8) + ',';
        if (i % 100 == 99) {
            piece += "#DIV/0!\n";
        } else if (i % 2 == 0) {
            piece += QByteArray(names[i / 2 % 4]) + colors[i / 2 % 4];
        } else {
            piece += "grey " + QByteArray::number(i) + ",21,0.31,0.33\n";
        }
        if (piece.size() > 8000 || i == count - 1) {
            stream.feed(piece);
            piece.clear();
            while (stream.hasLines()) {
                const auto measurements = stream.read(64);
                latest.setUnit(stream.state().unit);
                for (const Measurement &measurement : measurements) {
                    latest.add(measurement);
                }
                mostBytes = std::max(mostBytes, stream.state().heldBytes);
                mostLines = std::max(mostLines, stream.state().heldLines);
            }
            QVERIFY(latest.pointCount() <= mostLatestPoints);
            QVERIFY(latest.cabinetCount() <= mostLatestCabinets);
        }
    }
    QCOMPARE(stream.state().measurements, count - count / 100);
    QCOMPARE(stream.state().notRead, count / 100);
    QCOMPARE(stream.state().lines, count + 1);
    QVERIFY(mostBytes < 9000);
    QVERIFY(mostLines <= 2);
    QVERIFY(stream.state().warnings.size() < 10);
    QCOMPARE(latest.pointCount(), mostLatestPoints);
    QCOMPARE(latest.cabinetCount(), mostLatestCabinets);
    QVERIFY(latest.list().gamut(QString()));
}

QTEST_GUILESS_MAIN(MeasurementStreamTest)
#include "measurementstreamtest.moc"
