// SPDX-License-Identifier: MIT
#include <gamutfiles/edid.h>

#include "gamutfromprimaries_p.h"

#include <QCoreApplication>

#include <colord.h>

#include <memory>
#include <numeric>

namespace gamutfiles {

namespace {

constexpr int blockSize = 128;
const QByteArray header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);

using Failure = Outcome<DisplayGamut>;

struct EdidText {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::Edid)
};

struct Release {
    void operator()(CdEdid *edid) const { g_object_unref(edid); }
    void operator()(GBytes *bytes) const { g_bytes_unref(bytes); }
    void operator()(GError *error) const { g_error_free(error); }
};

QPointF chromaticity(const CdColorYxy *color)
{
    return {color->x, color->y};
}

QString displayName(CdEdid *edid)
{
    for (const char *text : {cd_edid_get_monitor_name(edid), cd_edid_get_eisa_id(edid), cd_edid_get_pnp_id(edid)}) {
        const QString name = QString::fromUtf8(text).trimmed();
        if (!name.isEmpty()) {
            return name;
        }
    }
    return {};
}

} // namespace

bool isEdid(const QByteArray &bytes)
{
    return bytes.startsWith(header);
}

Outcome<DisplayGamut> readEdid(const QByteArray &bytes)
{
    if (bytes.size() < blockSize) {
        return Failure::failure(
            EdidText::tr("is a truncated EDID: %1 bytes instead of at least %2").arg(bytes.size()).arg(int(blockSize)));
    }
    if (!isEdid(bytes)) {
        return Failure::failure(EdidText::tr("is not an EDID"));
    }
    const QByteArray block = bytes.left(blockSize);
    if (quint8(std::accumulate(block.begin(), block.end(), 0)) != 0) {
        return Failure::failure(EdidText::tr("is a damaged EDID: its checksum is wrong"));
    }
    const std::unique_ptr<CdEdid, Release> edid(cd_edid_new());
    const std::unique_ptr<GBytes, Release> data(g_bytes_new(block.constData(), gsize(block.size())));
    GError *parseError = nullptr;
    if (!cd_edid_parse(edid.get(), data.get(), &parseError)) {
        const std::unique_ptr<GError, Release> error(parseError);
        return Failure::failure(
            EdidText::tr("is an EDID that cannot be read: %1").arg(QString::fromUtf8(error->message)));
    }
    const Primaries primaries{chromaticity(cd_edid_get_red(edid.get())), chromaticity(cd_edid_get_green(edid.get())),
        chromaticity(cd_edid_get_blue(edid.get())), chromaticity(cd_edid_get_white(edid.get()))};
    if (primaries.red.isNull() && primaries.green.isNull() && primaries.blue.isNull()) {
        return Failure::failure(EdidText::tr("is an EDID without primaries"));
    }
    const auto gamut = gamutFromPrimaries(displayName(edid.get()), primaries, 1.0);
    return gamut ? Failure(DisplayGamut(*gamut, LuminanceUnit::Relative))
                 : Failure::failure(EdidText::tr("is an EDID without usable primaries: %1").arg(gamut.error()));
}

} // namespace gamutfiles
