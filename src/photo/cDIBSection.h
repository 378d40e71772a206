#pragma once

#include <QImage>
#include <QPixmap>

#include <vector>

/// A picture as a device-independent bitmap of 24 bits: blue, green, red; the bottom line first; each line padded to a
/// multiple of four bytes.
class cDIBSection
{
public:
    struct BITMAPINFOHEADER
    {
        quint32 biSize = 0;
        qint32 biWidth = 0;
        qint32 biHeight = 0;
        quint16 biPlanes = 0;
        quint16 biBitCount = 0;
        quint32 biCompression = 0;
        quint32 biSizeImage = 0;
    };

    /// Takes over a picture's size and pixels; false for a picture that is none or too large.
    bool CreateFromPicture(const QPixmap &picture);
    /// An empty section of that size.
    bool Create(int width, int height);

    int BytesPerScanLine() const;
    int Width() const { return m_header.biWidth; }
    int Height() const { return m_header.biHeight; }

    /// Copies a part of an image to the top left corner; a negative width or height means the section's own.
    void LoadPictureBlt(const QImage &source, int left = 0, int top = 0, int width = -1, int height = -1);

    /// Null while there is no section.
    const uchar *DIBSectionBitsPtr() const { return m_bits.empty() ? nullptr : m_bits.data(); }

    void ClearUp();

private:
    BITMAPINFOHEADER m_header;
    std::vector<uchar> m_bits;
};
