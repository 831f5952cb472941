// SPDX-License-Identifier: MIT
#include "gb18030_p.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <iconv.h>
#endif

namespace gamutfiles {

#ifdef Q_OS_WIN

ConvertedText fromGb18030(const QByteArray &bytes)
{
    constexpr UINT codePage = 54936;
    if (IsValidCodePage(codePage) == FALSE) {
        return {false, std::nullopt};
    }
    if (bytes.isEmpty()) {
        return {true, QString()};
    }
    const int length
        = MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.constData(), int(bytes.size()), nullptr, 0);
    if (length <= 0) {
        return {true, std::nullopt};
    }
    QString text(length, Qt::Uninitialized);
    MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.constData(), int(bytes.size()),
        reinterpret_cast<wchar_t *>(text.data()), length);
    return {true, text};
}

#else

ConvertedText fromGb18030(const QByteArray &bytes)
{
    const iconv_t converter = iconv_open("UTF-8", "GB18030");
    if (converter == iconv_t(-1)) {
        return {false, std::nullopt};
    }
    QByteArray source = bytes;
    QByteArray utf8(bytes.size() * 2 + 16, '\0'); // two bytes become three at most, four stay four
    char *in = source.data();
    char *out = utf8.data();
    auto inLeft = std::size_t(source.size());
    auto outLeft = std::size_t(utf8.size());
    const std::size_t result = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (result == std::size_t(-1) || inLeft > 0) {
        return {true, std::nullopt};
    }
    return {true, QString::fromUtf8(utf8.constData(), int(utf8.size() - int(outLeft)))};
}

#endif

} // namespace gamutfiles
