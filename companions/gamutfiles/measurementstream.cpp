// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <gamutfiles/measurementstream.h>

#include "colornames_p.h"
#include "linesplitter_p.h"
#include "streamrows_p.h"
#include "textencoding_p.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gamutfiles {

namespace {

struct StreamText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::MeasurementStream)
};

bool isAscii(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; });
}

//! Whether a first line such as "sep=;" names the separator of those that follow.
bool namesSeparator(const QString &line)
{
    return line.startsWith(QLatin1String("sep="), Qt::CaseInsensitive);
}

//! What can be read of \a bytes, whatever they are; the last character may lack some of its bytes.
QString readableText(const QByteArray &bytes, const std::optional<TextEncoding> &encoding)
{
    const auto text = decodeText(bytes, encoding);
    if (text) {
        return text->text;
    }
    if (!encoding || *encoding == TextEncoding::Windows1252) {
        return QString::fromLatin1(bytes.constData(), int(bytes.size()));
    }
    if (*encoding != TextEncoding::Utf16LittleEndian && *encoding != TextEncoding::Utf16BigEndian) {
        return QString::fromUtf8(bytes.constData(), int(bytes.size())); // with signs for what is invalid
    }
    QString units;
    for (int i = 0; i + 1 < bytes.size(); i += 2) {
        const bool isLittle = *encoding == TextEncoding::Utf16LittleEndian;
        units += QChar(uchar(bytes.at(isLittle ? i : i + 1)), uchar(bytes.at(isLittle ? i + 1 : i)));
    }
    return units;
}

MeasurementOptions usable(MeasurementOptions options)
{
    if (options.decimalSign && *options.decimalSign != QLatin1Char('.') && *options.decimalSign != QLatin1Char(',')) {
        options.decimalSign.reset();
    }
    return options;
}

} // namespace

class MeasurementStream::Private {
public:
    explicit Private(const MeasurementOptions &asked)
        : options(usable(asked))
        , splitter(options.encoding, maximumStreamLineBytes)
    {
    }

    void takeLine(const StreamLine &line);
    bool takeText(const NumberedLine &line);
    void takeRow(const CsvRow &row, const NumberedLine &line);
    QString readable(const QByteArray &bytes) const;
    void keepUnread(const QString &text, qint64 number);
    std::optional<CsvRow> brokenRow(QString text, const StreamRows &of) const;
    std::unique_ptr<StreamRows> rowsOfWaitingHeader() const;
    bool beginAnew(const NumberedLine &line);
    bool beginRows(const QVector<NumberedLine> &lines);
    bool beginWithoutOpenQuotes();
    void findHeader();
    void dropOldest(int count);
    void refuseAllHeld();
    std::optional<QString> decoded(const QByteArray &bytes);
    void findUnread(StreamRows &of);
    QVector<Measurement> colorsAmong(QVector<Measurement> unread);
    std::optional<UnfinishedMeasurement> unfinished(const QByteArray &bytes);
    void findLevels(const Measurement &measurement);
    void playPart(Measurement &measurement) const;
    void playUnreadPart(Measurement &measurement);
    bool isOfCabinet(const Measurement &measurement) const;
    void refuse(qint64 line, const Problem &problem);
    void refreshState();

    MeasurementOptions options;
    LineSplitter splitter;
    std::optional<TextEncoding> encoding; // nothing while all has been ASCII
    QVector<NumberedLine> head; // until there is a header
    Problem headProblem; // why there is none in it
    std::unique_ptr<StreamRows> rows; // nothing until there is a header
    QVector<CsvRow> firstRows; // below the header, to be read next
    QVector<Measurement> found;
    QVector<ColorLevel> highestLevel; // of those without a stated full level: one, or none
    bool isFinished = false;
    LastLine lastLine = LastLine::IsWhole;
    QByteArray cutOff; // the last line, if it may be
    bool hasLines = false;
    MeasurementStreamState state;
};

void MeasurementStream::Private::refuse(qint64 line, const Problem &problem)
{
    ++state.notRead;
    state.lastNotRead = problem;
    if (state.lastNotRead.place.isEmpty()) {
        state.lastNotRead.place = StreamRows::placeOf(line);
    }
}

std::optional<QString> MeasurementStream::Private::decoded(const QByteArray &bytes)
{
    const auto known = splitter.encoding() ? splitter.encoding() : encoding;
    const auto text = decodeText(bytes, known);
    if (!text) {
        refuse(state.lines, text.problem());
        return std::nullopt;
    }
    if (!known && !isAscii(bytes)) {
        encoding = text->encoding;
        state.warnings += text.warnings();
    }
    return text->text;
}

void MeasurementStream::Private::takeLine(const StreamLine &line)
{
    ++state.lines;
    if (line.isTooLong) {
        refuse(state.lines,
            Problem{StreamText::tr("is longer than %1 KiB").arg(maximumStreamLineBytes / 1024), QString(), 0, 0});
        keepUnread(readable(line.bytes), state.lines);
        return;
    }
    if (line.hasNoEnd && lastLine == LastLine::MayBeCutOff) {
        refuse(state.lines, Problem{StreamText::tr("has no end, and may be cut off"), QString(), 0, 0});
        cutOff = line.bytes;
        return;
    }
    const auto text = decoded(line.bytes);
    if (!text || !takeText({state.lines, *text})) {
        keepUnread(readable(line.bytes), state.lines);
    }
}

//! What a line would be read by if it were whole; nothing without a header.
std::unique_ptr<StreamRows> MeasurementStream::Private::rowsOfWaitingHeader() const
{
    for (int i = int(head.size()) - 1; i >= 0; --i) {
        auto candidate = std::make_unique<StreamRows>(options);
        if (candidate->isHeader(head.at(i))) {
            return candidate;
        }
    }
    return nullptr;
}

QString MeasurementStream::Private::readable(const QByteArray &bytes) const
{
    return readableText(bytes, splitter.encoding() ? splitter.encoding() : encoding);
}

void MeasurementStream::Private::keepUnread(const QString &text, qint64 number)
{
    const auto waiting = rows ? nullptr : rowsOfWaitingHeader();
    StreamRows *of = rows ? rows.get() : waiting.get();
    if (auto row = of ? brokenRow(text, *of) : std::nullopt) {
        row->line = int(number);
        of->keepUnread(*row);
        findUnread(*of);
    }
}

//! The fields of a line that cannot be divided into them by the rules: a quote is nothing but a character.
std::optional<CsvRow> MeasurementStream::Private::brokenRow(QString text, const StreamRows &of) const
{
    text.remove(QLatin1Char('"'));
    const CsvTable table = readCsv(text, of.separator());
    return table.rows.isEmpty() ? std::nullopt : std::make_optional(table.rows.first());
}

//! Whether the line by itself could be divided into fields.
bool MeasurementStream::Private::takeText(const NumberedLine &line)
{
    const QChar separator = rows ? rows->separator() : QLatin1Char(',');
    const CsvTable table = readCsv(line.text, separator);
    if (table.unterminatedLine > 0) {
        refuse(line.number, Problem{StreamRows::unterminatedQuote(), QString(), 0, 0});
        return false;
    }
    if (rows && !table.rows.isEmpty()) {
        CsvRow row = table.rows.first();
        row.line = int(line.number);
        takeRow(row, line);
    } else if (!rows && (!table.rows.isEmpty() || namesSeparator(line.text))) {
        head.append(line);
        findHeader();
    }
    return true;
}

//! Begins the rows with the header in \a lines, if it and what follows are there.
bool MeasurementStream::Private::beginRows(const QVector<NumberedLine> &lines)
{
    auto candidate = std::make_unique<StreamRows>(options);
    if (!candidate->begin(lines, [this](qint64 line, const Problem &problem) { refuse(line, problem); })) {
        headProblem = candidate->failure();
        return false;
    }
    rows = std::move(candidate);
    firstRows = rows->takeFirstRows();
    head.clear();
    headProblem = Problem();
    state.warnings = rows->warnings();
    return true;
}

//! Looks for the header without the lines whose quote is open by its separator: all below them would count as quoted.
bool MeasurementStream::Private::beginWithoutOpenQuotes()
{
    const auto waiting = rowsOfWaitingHeader();
    if (!waiting) {
        return false;
    }
    QVector<NumberedLine> whole;
    QVector<NumberedLine> open;
    for (const NumberedLine &line : std::as_const(head)) {
        const bool isOpen = readCsv(line.text, waiting->separator()).unterminatedLine > 0;
        (isOpen ? open : whole).append(line);
    }
    const Problem problem = headProblem;
    if (open.isEmpty() || !beginRows(whole)) {
        headProblem = problem;
        return false;
    }
    for (const NumberedLine &line : std::as_const(open)) {
        refuse(line.number, Problem{StreamRows::unterminatedQuote(), QString(), 0, 0});
        keepUnread(line.text, line.number);
    }
    return true;
}

void MeasurementStream::Private::findHeader()
{
    if (beginRows(head) || beginWithoutOpenQuotes()) {
        return;
    }
    if (head.size() >= maximumHeldLines) {
        // Half of them, as looking through them anew for every line takes time.
        dropOldest(maximumHeldLines / 2);
    }
}

void MeasurementStream::Private::dropOldest(int count)
{
    const int kept = !head.isEmpty() && namesSeparator(head.first().text) ? 1 : 0;
    for (int i = kept; i < count; ++i) {
        refuse(head.at(i).number, Problem{headProblem.text, QString(), 0, 0});
    }
    head.remove(kept, std::max(count - kept, 0));
}

//! Whether \a line, which is no measurement, is the header of a list that begins here.
bool MeasurementStream::Private::beginAnew(const NumberedLine &line)
{
    if (!StreamRows(options).isHeader(line)) {
        return false;
    }
    rows->refuseHeld([this](qint64 held, const Problem &problem) { refuse(held, problem); });
    findUnread(*rows);
    rows.reset();
    firstRows.clear();
    head = {line};
    findHeader();
    return true;
}

void MeasurementStream::Private::takeRow(const CsvRow &row, const NumberedLine &line)
{
    std::optional<std::pair<qint64, Problem>> refused;
    const auto keepRefused = [&](qint64 number, const Problem &problem) {
        if (refused) {
            refuse(refused->first, refused->second);
        }
        refused = {number, problem};
    };
    QVector<Measurement> measurements = rows->take(row, keepRefused);
    if (refused && !(refused->first == row.line && !line.text.isEmpty() && beginAnew(line))) {
        refuse(refused->first, refused->second);
    }
    if (rows) { // or a header has begun anew
        findUnread(*rows);
    }
    for (Measurement &measurement : measurements) {
        findLevels(measurement);
        playPart(measurement);
        ++state.measurements;
        if (isOfCabinet(measurement)) {
            found.append(measurement);
        }
    }
}

//! What is known of lines that are not read, where that is which colour they measured.
void MeasurementStream::Private::findUnread(StreamRows &of)
{
    found += colorsAmong(of.takeUnread());
}

QVector<Measurement> MeasurementStream::Private::colorsAmong(QVector<Measurement> unread)
{
    QVector<Measurement> colors;
    for (Measurement &measurement : unread) {
        playUnreadPart(measurement);
        const bool isColor
            = measurement.part != MeasurementPart::None || colorName(measurement.name).part != MeasurementPart::None;
        if (isColor && isOfCabinet(measurement)) {
            colors.append(measurement);
        }
    }
    return colors;
}

std::optional<UnfinishedMeasurement> MeasurementStream::Private::unfinished(const QByteArray &bytes)
{
    const auto waiting = rows ? nullptr : rowsOfWaitingHeader();
    StreamRows *of = rows ? rows.get() : waiting.get();
    const auto row = of ? brokenRow(readable(bytes), *of) : std::nullopt;
    const auto known = row ? of->unfinished(*row) : std::nullopt;
    if (!known || (known->isCabinetKnown && !isOfCabinet(known->measurement))) {
        return std::nullopt;
    }
    UnfinishedMeasurement result = *known;
    if (result.isColorKnown) {
        Measurement whole = result.measurement;
        playUnreadPart(whole);
        if (whole.part != MeasurementPart::None) {
            result.parts = {whole.part};
        }
    } else {
        const bool areChosen
            = !options.red.isEmpty() || !options.green.isEmpty() || !options.blue.isEmpty() || !options.white.isEmpty();
        result.parts = possibleParts(areChosen ? QString() : result.measurement.name);
    }
    return result;
}

//! The level of a broken line may be a wrong one: it counts for that line only.
void MeasurementStream::Private::playUnreadPart(Measurement &measurement)
{
    const QVector<ColorLevel> known = highestLevel;
    findLevels(measurement);
    playPart(measurement);
    highestLevel = known;
}

void MeasurementStream::Private::findLevels(const Measurement &measurement)
{
    const ColorName name = colorName(measurement.name);
    if (!name.level || name.level->full || name.part == MeasurementPart::Black) {
        return;
    }
    const bool isHigher = highestLevel.isEmpty() || name.level->value > highestLevel.first().value;
    const bool hasDecimals = name.level->hasDecimals || (!highestLevel.isEmpty() && highestLevel.first().hasDecimals);
    if (isHigher) {
        highestLevel = {*name.level};
    }
    highestLevel.first().hasDecimals = hasDecimals;
}

void MeasurementStream::Private::playPart(Measurement &measurement) const
{
    measurement.part = playedPart(colorName(measurement.name), commonFullLevel(highestLevel));
    const std::pair<const MeasurementChoice *, MeasurementPart> choices[]
        = {{&options.red, MeasurementPart::Red}, {&options.green, MeasurementPart::Green},
            {&options.blue, MeasurementPart::Blue}, {&options.white, MeasurementPart::White}};
    for (const auto &[choice, part] : choices) {
        if (choice->isEmpty()) {
            continue;
        }
        if (StreamRows::isChosen(measurement, *choice)) {
            measurement.part = part;
        } else if (measurement.part == part) {
            measurement.part = MeasurementPart::None;
        }
    }
}

bool MeasurementStream::Private::isOfCabinet(const Measurement &measurement) const
{
    const QString wanted = options.cabinet.trimmed();
    const auto is = [&wanted](const QString &name) { return name.compare(wanted, Qt::CaseInsensitive) == 0; };
    return wanted.isEmpty() || is(measurement.cabinet)
        || is(CabinetMeasurements{measurement.cabinet, measurement.row, measurement.column, {}}.label());
}

//! What nothing more will come to explain.
void MeasurementStream::Private::refuseAllHeld()
{
    dropOldest(int(head.size()));
    head.clear();
    if (rows) {
        rows->refuseHeld([this](qint64 line, const Problem &problem) { refuse(line, problem); });
        findUnread(*rows);
    }
}

void MeasurementStream::Private::refreshState()
{
    state.heldLines = int(head.size() + firstRows.size()) + (rows ? rows->heldRows() : 0);
    state.heldBytes = splitter.keptBytes();
    state.waitsFor = !head.isEmpty() ? headProblem : rows && rows->heldRows() > 0 ? rows->failure() : Problem();
    if (rows) {
        state.recognized = rows->recognized();
    }
    state.recognized.encoding
        = splitter.encoding() ? *splitter.encoding() : encoding.value_or(options.encoding.value_or(TextEncoding::Utf8));
    state.recognized.fullLevel = commonFullLevel(highestLevel);
}

MeasurementStream::MeasurementStream(const MeasurementOptions &options)
    : d(std::make_unique<Private>(options))
{
}

MeasurementStream::~MeasurementStream() = default;

void MeasurementStream::feed(const QByteArray &bytes)
{
    d->splitter.feed(bytes);
    d->hasLines = true;
}

void MeasurementStream::finish(LastLine lastLine)
{
    d->splitter.finish();
    d->lastLine = lastLine;
    d->isFinished = true;
    d->hasLines = true;
}

QVector<Measurement> MeasurementStream::read(int most)
{
    for (int i = 0; i < most && d->hasLines; ++i) {
        if (d->rows && d->rows->unit() != d->state.unit) {
            if (!d->found.isEmpty()) {
                break; // those before the header are told first
            }
            d->state.unit = d->rows->unit();
        }
        for (const CsvRow &row : std::exchange(d->firstRows, {})) {
            d->takeRow(row, {row.line, QString()});
        }
        const auto line = d->splitter.next();
        d->hasLines = line.has_value();
        if (line) {
            d->takeLine(*line);
        } else if (d->isFinished) {
            d->refuseAllHeld();
        }
    }
    d->refreshState();
    return std::exchange(d->found, {});
}

std::optional<UnfinishedMeasurement> MeasurementStream::unfinished() const
{
    return d->unfinished(d->isFinished ? d->cutOff : d->splitter.unfinished());
}

QVector<Measurement> MeasurementStream::held() const
{
    return d->rows ? d->colorsAmong(d->rows->heldUnread()) : QVector<Measurement>();
}

bool MeasurementStream::hasLines() const
{
    return d->hasLines;
}

const MeasurementStreamState &MeasurementStream::state() const
{
    return d->state;
}

} // namespace gamutfiles
