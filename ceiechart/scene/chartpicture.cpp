// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#include <ceiechart/scene/chartpicture_p.h>

#include <QPainter>

#include <cmath>
#include <memory>
#include <utility>

namespace ceiechart {

namespace {

bool isOpaque(const QImage &picture)
{
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        QRgb all = 0xff000000U;
        for (int x = 0; x < width; ++x) {
            all &= line[x];
        }
        if (qAlpha(all) != 255) {
            return false;
        }
    }
    return true;
}

bool isWhole(double value)
{
    return value == std::floor(value) && std::fabs(value) < 1e6;
}

/*!
 * \brief Whether \a rect covers whole device pixels, one for each unit, and begins inside the device.
 *
 * The engine rounds its sampling positions relative to the beginning of a row. Only under these conditions does it draw
 * the same pixels as a copy of the scaled picture.
 */
bool isCopyExact(const QPainter &painter, const QRectF &rect)
{
    const QTransform &transform = painter.deviceTransform();
    return transform.type() <= QTransform::TxTranslate && isWhole(transform.dx()) && isWhole(transform.dy())
        && isWhole(rect.x()) && isWhole(rect.y()) && isWhole(rect.width()) && isWhole(rect.height())
        && rect.x() + transform.dx() >= 0 && rect.y() + transform.dy() >= 0;
}

} // namespace

void ChartPicture::reset(QImage *picture, bool isKnownAsOpaque)
{
    const std::unique_ptr<QImage> owned(picture);
    m_image = owned ? std::move(*owned) : QImage();
    // Everything below counts in the picture's own pixels.
    m_pixelRatio = m_image.devicePixelRatio();
    m_image.setDevicePixelRatio(1.0);
    m_opaque = m_image.format() == QImage::Format_ARGB32 && (isKnownAsOpaque || isOpaque(m_image));
    m_scaled = QImage();
    m_set = owned != nullptr;
}

QImage ChartPicture::takeLarge()
{
    // The C library may return a larger block to the system, glibc always one of more than 32 MiB, and
    // get a new one with a page fault for every 4 KiB. It does so in any case for the second picture if that is drawn
    // while the first is still held.
    constexpr auto largestKept = qint64(1024) * 1024;
    return m_image.sizeInBytes() > largestKept && m_image.isDetached() ? std::exchange(m_image, QImage()) : QImage();
}

QImage ChartPicture::image() const
{
    QImage image = m_image;
    image.setDevicePixelRatio(m_pixelRatio);
    return image;
}

QImage ChartPicture::readyFor(const QPainter &painter) const
{
    // For an opaque picture both formats have the same values. A picture that is rotated or scaled is sampled
    // differently in the premultiplied format.
    if (m_opaque && painter.deviceTransform().type() <= QTransform::TxTranslate) {
        return QImage(m_image.constBits(), m_image.width(), m_image.height(), m_image.bytesPerLine(),
            QImage::Format_ARGB32_Premultiplied);
    }
    return m_image;
}

void ChartPicture::draw(QPainter *painter, const QRectF &target)
{
    const QSize size = target.size().toSize();
    if (size == m_image.size() || !isCopyExact(*painter, target)) {
        drawPart(painter, target, m_image.rect());
        return;
    }
    if (m_scaled.size() != size) {
        m_scaled = QImage(size, QImage::Format_ARGB32_Premultiplied);
        if (m_scaled.isNull()) {
            drawPart(painter, target, m_image.rect());
            return;
        }
        m_scaled.fill(Qt::transparent);
        QPainter scaling(&m_scaled);
        drawPart(&scaling, m_scaled.rect(), m_image.rect());
    }
    painter->drawImage(target.topLeft(), m_scaled);
}

void ChartPicture::drawPart(QPainter *painter, const QRectF &target, const QRectF &source)
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, true);
    painter->drawImage(target, readyFor(*painter), source);
    painter->restore();
}

} // namespace ceiechart
