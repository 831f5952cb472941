// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include "edidblock_p.h"

#include <QCoreApplication>

#include <colord.h>

#include <memory>

namespace gamutfiles {

namespace {

struct Release {
    void operator()(CdEdid *edid) const { g_object_unref(edid); }
    void operator()(GBytes *bytes) const { g_bytes_unref(bytes); }
    void operator()(GError *error) const { g_error_free(error); }
};

QPointF chromaticity(const CdColorYxy *color)
{
    return {color->x, color->y};
}

QString monitorName(CdEdid *edid)
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

Outcome<EdidBlock> readEdidBlock(const QByteArray &block)
{
    const std::unique_ptr<CdEdid, Release> edid(cd_edid_new());
    const std::unique_ptr<GBytes, Release> data(g_bytes_new(block.constData(), gsize(block.size())));
    GError *parseError = nullptr;
    if (!cd_edid_parse(edid.get(), data.get(), &parseError)) {
        const std::unique_ptr<GError, Release> error(parseError);
        return Outcome<EdidBlock>::failure(
            QCoreApplication::translate("gamutfiles::Edid", "is an EDID that cannot be read: %1")
                .arg(QString::fromUtf8(error->message)));
    }
    return EdidBlock{monitorName(edid.get()), QString::fromUtf8(cd_edid_get_pnp_id(edid.get())).trimmed(),
        {chromaticity(cd_edid_get_red(edid.get())), chromaticity(cd_edid_get_green(edid.get())),
            chromaticity(cd_edid_get_blue(edid.get())), chromaticity(cd_edid_get_white(edid.get()))}};
}

} // namespace gamutfiles
