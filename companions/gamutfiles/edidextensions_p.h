// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_EDIDEXTENSIONS_P_H
#define GAMUTFILES_EDIDEXTENSIONS_P_H

#include <gamutfiles/edid.h>

#include <QCoreApplication>

namespace gamutfiles {

/*! \brief The size of the base block and of each extension. */
constexpr int edidBlockSize = 128;

/*! \brief The gamma that \a code says, in a base block and in DisplayID: (100 + code) / 100; 0xFF: it is not stated. */
std::optional<double> edidGamma(int code);

/*! \brief Whether the bytes of \a block add up to a multiple of 256. */
bool edidChecksumIsRight(const QByteArray &block);

/*!
 * \brief Reads what the extension blocks of an EDID say of colour.
 *
 * Every count and offset is checked against the block it stands in. What is wrong is warned of; the reading goes on
 * with the next block.
 */
class EdidExtensions {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Edid)

public:
    /*! \brief Reads the blocks after the first of \a edid, whose base block is whole, into \a display. */
    void read(const QByteArray &edid, EdidDisplay &display);

    /*! \brief What was wrong with them, in the order of the file. */
    const QVector<Problem> &warnings() const { return m_warnings; }

    /*!
     * \brief The first colour by which \a first and \a second differ by more than their digits, with both
     * chromaticities; empty when there is none.
     */
    static QString difference(const EdidChromaticities &first, const EdidChromaticities &second);

private:
    //! Bytes of a block, with where they begin in it.
    struct Bytes {
        QByteArray data;
        int offset = 0;

        int size() const { return data.size(); }
        int at(int index) const { return quint8(data.at(index)); }
        Bytes mid(int from, int length = -1) const { return {data.mid(from, length), offset + from}; }
    };

    // In edidcta.cpp.
    void readCta(const Bytes &block);
    void readCtaDataBlocks(const Bytes &blocks);
    void readColorimetry(const Bytes &payload);
    void readHdrStaticMetadata(const Bytes &payload);

    // In ediddisplayid.cpp.
    void readDisplayId(const Bytes &block);
    void readDisplayIdBlock(int tag, int revision, const Bytes &payload);
    void readParameters1(const Bytes &payload);
    void readColorCharacteristics(int revision, const Bytes &payload);
    void readParameters2(const Bytes &payload);
    void setGamma(int code);
    void setChromaticities(const EdidChromaticities &colors, int byte);
    EdidNativeLuminance plausible(EdidNativeLuminance luminances, int byte);
    void setLuminances(const EdidNativeLuminance &luminances, int byte);

    bool isLongEnough(const Bytes &payload, int size, const QString &name);
    void warn(const QString &text, int byte = -1);

    EdidDisplay *m_display = nullptr;
    int m_block = 0;
    int m_blockCount = 0;
    bool m_hasLuminances = false;
    QVector<Problem> m_warnings;
};

} // namespace gamutfiles

#endif
