// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_MEASUREMENTREADER_P_H
#define GAMUTFILES_MEASUREMENTREADER_P_H

#include "columnnames_p.h"
#include "csv_p.h"

#include <gamutfiles/measurementlist.h>

#include <QCoreApplication>

#include <array>
#include <utility>
#include <vector>

namespace gamutfiles {

/*! \brief Reads one measurement list, step by step; the first thing that is wrong ends it. */
class MeasurementReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::MeasurementList)

public:
    explicit MeasurementReader(const MeasurementOptions &options)
        : m_options(options)
    {
    }

    /*! \brief The list in \a bytes. To be called once. */
    Outcome<MeasurementList> read(const QByteArray &bytes);

protected: // for lists that are still being written
    using Columns = std::array<int, columnPartCount>; // index of each part's column, -1: there is none
    struct Header {
        Columns columns;
        std::array<ColumnName, columnPartCount> names;
        QVector<int> nameColumns; // those that can name the measurements, remarks behind the others
        int nameCount = 0; // how many of these are no remarks
        QVector<Problem> warnings; // columns that are not read though they could be meant
        int luminances = 0; // columns that give one
        bool hasOtherObserver = false; // columns of the 10° observer
    };

    // Each step returns false, with m_failure set, when the list is refused.
    bool decode(const QByteArray &bytes);
    bool findColumns();
    bool decideDecimalSign();
    bool readRows();
    bool takeRow(const CsvRow &row);
    bool assignParts();
    bool checkGamut();

    static Header headerOf(const CsvRow &row);
    bool useCommentedHeader();
    void useHeader(Header header, const CsvRow &row, int firstRow);
    struct NamesInColumn {
        int colors = 0; // how many fields name one
        std::array<bool, std::size_t(MeasurementPart::Black) + 1> has{}; // by MeasurementPart
        bool hasGap = false; // whether a measurement has no name in this column
    };
    std::vector<NamesInColumn> namesIn(const QVector<int> &columns) const;
    void chooseName(Header &header, const CsvRow &row);
    int columnOfColors(const Header &header) const;
    void chooseLuminance(Header &header, const CsvRow &row);
    void useColumns(const Columns &columns, const QStringList &headers);
    void useCabinets(const Columns &columns, const QStringList &headers);
    void keep(ColumnPart part, int column, const QStringList &headers);
    void warnOfObserver(int headerLine);
    void readUnitRow(ColumnName unit);
    bool readUnitColumn(ColumnName &unit, int &line);
    bool hasUnitOfList(const CsvRow &row);
    void useUnit(const ColumnName &luminance, int line);
    bool isRepeatedHeader(const CsvRow &row) const;
    bool isOtherHeader(const CsvRow &row) const;
    void warnOfUnits(const ColumnName &luminance, const QString &where);

    void findNoise(const CsvRow &row);
    ColumnPart luminancePart() const;
    std::optional<Measurement> readRow(const CsvRow &row);
    bool namesColorOfCabinet(const CsvRow &row) const;
    bool isAboveHeader(const CsvRow &row) const;
    Measurement withoutNumbers(const CsvRow &row);
    bool readColor(const CsvRow &row, Measurement &measurement);
    void readWithoutChromaticity(const CsvRow &row, const Measurement &measurement);
    bool readXy(const CsvRow &row, Measurement &measurement, bool isDark);
    bool readTristimulus(const CsvRow &row, Measurement &measurement);
    void keepSize(Measurement &measurement, const std::array<double, 3> &tristimulus) const;
    bool readUv(const CsvRow &row, Measurement &measurement, bool isDark);
    //! A number with the half of its last digit.
    struct RoundedNumber {
        double value = 0.0;
        double rounding = 0.0;
    };
    std::optional<RoundedNumber> unread(const CsvRow &row, ColumnPart part) const;
    void compareWithTristimulus(const CsvRow &row, double x, double y);
    void compareWithUv(const CsvRow &row, double x, double y);
    void readPlace(const CsvRow &row, Measurement &measurement);
    std::optional<QString> field(const CsvRow &row, ColumnPart part);
    std::optional<double> number(const CsvRow &row, ColumnPart part);
    QString given(const CsvRow &row, ColumnPart part) const;
    bool isNotGiven(const CsvRow &row, ColumnPart part) const;
    bool isDivided(const CsvRow &row, const Measurement &measurement) const;
    void warnOfRows();

    void assignByName();
    bool chooseCabinet();
    void warnOfCabinets(const QVector<CabinetMeasurements> &cabinets);
    static bool answersTo(const Measurement &measurement, const MeasurementChoice &choice);
    bool choose(const MeasurementChoice &choice, MeasurementPart part);
    void warnOfParts(const MeasurementList &list, const QString &where);

    //! Whether nothing but the line tells one measurement from the other.
    bool isNameless() const { return !has(ColumnPart::Name) && !has(ColumnPart::Cabinet) && !has(ColumnPart::Row); }
    bool has(ColumnPart part) const { return columnOf(part) >= 0; }
    int columnOf(ColumnPart part) const { return m_columns[std::size_t(part)]; }
    static QString place(int line) { return tr("line %1").arg(line); }
    QString place(int line, ColumnPart part) const;
    bool fail(const QString &text, const QString &where = QString());
    void warn(const QString &text, const QString &where = QString());

    //! Lines of which one warning speaks together.
    struct Lines {
        int first = 0;
        int count = 0;
        void add(int line)
        {
            first = count == 0 ? line : first;
            ++count;
        }
    };

    MeasurementOptions m_options;
    CsvTable m_table;
    Header m_header{}; // as the list gives it
    CsvRow m_unitRow; // below the header; without fields: there is none
    std::pair<int, QString> m_columnUnit; // of the column of units: the line of the first one, and how it is written
    int m_firstRow = 0; // of the measurements
    int m_headerFields = 0; // how many the header has; 0: there is none
    int m_width = 0; // of them, up to the last with a name
    Columns m_columns{};
    std::array<QString, columnPartCount> m_labels; // as messages call the columns
    QVector<ColumnPart> m_numberParts; // the columns that must be numbers
    QChar m_decimalSign = QLatin1Char('.');
    double m_luminanceScale = 1.0;
    std::array<double, columnPartCount> m_noise{}; // of Y and of the luminances: how far below 0 they can be
    Lines m_repeatedHeaders;
    Lines m_withoutNumbers;
    Lines m_withoutChromaticity;
    Lines m_dark;
    Lines m_belowZero;
    Lines m_otherTristimulus;
    Lines m_otherUv;
    Lines m_wider;
    MeasurementList m_list;
    QVector<Problem> m_warnings;
    Problem m_failure;
};

} // namespace gamutfiles

#endif
