#include "image/ui/ClipboardPicture.h"

#include "framework/ui/CClipboard.h"
#include "image/picture/ColorList.h"
#include "image/ui/TavloViewFixture.h"
#include "res/CommandIds.h"

#include <QBuffer>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTest>

namespace {

// Data of another program: counts what it is asked for, and takes its time.
class ForeignData : public QMimeData {
public:
    ForeignData(QStringList offered, QByteArray content, int milliseconds = 0)
        : forms(std::move(offered)), bytes(std::move(content)), delay(milliseconds) {}

    QStringList formats() const override {
        ++questions;
        return forms;
    }
    static inline int questions = 0;

protected:
    QVariant retrieveData(const QString&, QMetaType) const override {
        ++questions;
        QTest::qSleep(delay);
        return bytes;
    }

private:
    QStringList forms;
    QByteArray bytes;
    int delay;
};

QByteArray Encode(const QImage& image, const char* format) {
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

// A bitmap file of 32 bits that claims a size and has so many bytes of pixels.
QByteArray MakeBitmap(int width, int height, int pixelBytes) {
    QByteArray file = Encode(QImage(1, 1, QImage::Format_RGB32), "BMP").first(54);
    constexpr int widthOffset = 18, heightOffset = 22, depthOffset = 28;
    std::memcpy(file.data() + widthOffset, &width, sizeof width);
    std::memcpy(file.data() + heightOffset, &height, sizeof height);
    file[depthOffset] = 32;
    return file + QByteArray(pixelBytes, 1);
}

// The PNG file with another size; in hexadecimal, its check sum included.
QByteArray WithHeader(QByteArray png, const char* header) {
    constexpr qsizetype headerOffset = 16, headerSize = 17;
    return png.replace(headerOffset, headerSize, QByteArray::fromHex(header));
}

class ClipboardPictureTest : public TavloViewFixture {
protected:
    ~ClipboardPictureTest() override { QGuiApplication::clipboard()->clear(); }

    void Offer(QMimeData* data) { QGuiApplication::clipboard()->setMimeData(data); }
    void Offer(const QString& format, const QByteArray& bytes) { Offer(new ForeignData({format}, bytes)); }
    static const QMimeData& Offered() { return *QGuiApplication::clipboard()->mimeData(); }
};

} // namespace

TEST_F(ClipboardPictureTest, CopyOffersThePictureAsItWasThen) {
    GetTexture().SetPixel(3, 1, 0x40102030);
    EXPECT_TRUE(Send(ID_EDIT_COPY));
    GetTexture().SetPixel(3, 1, 0);
    const QByteArray bitmap = Offered().data("image/bmp");
    ASSERT_EQ(bitmap.size(), 54 + 64 * 32 * 4);
    const qsizetype texel = 54 + ((32 - 1 - 1) * 64 + 3) * 4; // rows are stored from the bottom
    EXPECT_EQ(bitmap.mid(texel, 4), QByteArray("\x30\x20\x10\x40"));
    QImage png;
    ASSERT_TRUE(png.loadFromData(Offered().data("image/png")));
    EXPECT_EQ(png.pixel(3, 1), 0x40102030U);
    EXPECT_EQ(png, Offered().imageData().value<QImage>());
    EXPECT_EQ(png.pixel(63, 31), GetTexture().GetPixel(63, 31));
}

TEST_F(ClipboardPictureTest, PasteReplacesThePictureAndAllThatBelongedToIt) {
    GetTexture().palette = std::make_unique<ColorList>(4);
    GetTexture().quakeName = "name";
    GetTexture().quake2.value = 7;
    GetTexture().SetPixel(0, 0, 0x40102030);
    const Texture before = GetTexture();
    EXPECT_TRUE(Send(ID_EDIT_CUT));
    EXPECT_EQ(GetTexture().GetPixel(0, 0), before.GetPixel(0, 0)) << "there is nothing that would be cleared";
    EXPECT_FALSE(Send(ID_EDIT_CLEAR));
    EXPECT_TRUE(Send(ID_EDIT_PASTE));
    EXPECT_EQ(GetTexture().GetPixel(0, 0), 0xFF102030U);
    EXPECT_FALSE(GetTexture().palette);
    EXPECT_EQ(GetTexture().quakeName, "");
    EXPECT_EQ(GetTexture().quake2, Quake2Properties());
    EXPECT_TRUE(document->IsModified());
    Send(ID_EDIT_UNDO);
    EXPECT_TRUE(std::ranges::equal(GetTexture().Pixels(), before.Pixels()));
    EXPECT_TRUE(GetTexture().palette);
    EXPECT_EQ(GetTexture().quake2, before.quake2);
    Send(ID_EDIT_REDO);
    EXPECT_FALSE(GetTexture().palette);
}

TEST_F(ClipboardPictureTest, TakesPicturesOfOtherProgramsInManyForms) {
    QImage image(100, 30, QImage::Format_ARGB32);
    image.fill(0x80FF4020);
    const std::pair<const char*, const char*> forms[] = {
        {"image/png", "PNG"}, {"image/bmp", "BMP"}, {"image/x-portable-pixmap", "PPM"}};
    for (const auto& [type, format] : forms) {
        Offer(type, Encode(image, format));
        ASSERT_TRUE(Send(ID_EDIT_PASTE)) << type;
        EXPECT_EQ(GetTexture().GetWidth(), 100);
        EXPECT_EQ(Alpha(GetTexture().GetPixel(99, 29)), 255U);
        EXPECT_EQ(document->GetHistory().TopUndoName(), "Paste");
        Send(ID_EDIT_UNDO);
        EXPECT_EQ(GetTexture().GetWidth(), 64);
    }
}

TEST_F(ClipboardPictureTest, DamagedDataLeavesTheDocumentAsItWas) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QByteArray png = Encode(image, "PNG");
    const std::pair<const char*, QByteArray> cases[] = {
        {"image/bmp", {}},
        {"image/bmp", "no bitmap"},
        {"image/bmp", MakeBitmap(64, 64, 64 * 64 * 4 - 1)},
        {"image/bmp", MakeBitmap(30000, 30000, 1000)},
        {"image/bmp", MakeBitmap(0, 0, 0)},
        {"image/bmp", MakeBitmap(-5, 5, 100)},
        {"image/png", {}},
        {"image/png", png.first(png.size() / 2)},
        {"image/png", WithHeader(png, "00007530000075300802000000e9456fed")},
        {"image/png", WithHeader(png, "00000000000000000802000000b4e9eb45")},
        {"application/x-qt-image", "no picture"},
    };
    const Texture before = GetTexture();
    for (const auto& [type, bytes] : cases) {
        Offer(type, bytes);
        EXPECT_TRUE(Send(ID_EDIT_PASTE)) << type;
        EXPECT_FALSE(document->IsModified()) << type;
        EXPECT_FALSE(document->GetHistory().CanUndo());
        EXPECT_TRUE(std::ranges::equal(GetTexture().Pixels(), before.Pixels()));
    }
    Offer("text/plain", "text");
    EXPECT_FALSE(Send(ID_EDIT_PASTE));
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(Send(ID_EDIT_PASTE));
}

TEST_F(ClipboardPictureTest, AsksTheOwnerOnlyWhenSomethingChangesAndOnlyOnce) {
    Offer("image/png", "x");
    ForeignData::questions = 0;
    for (int i = 0; i < 100; ++i) {
        GetMainFrame().OnIdle();
        EXPECT_TRUE(StateOf(ID_EDIT_PASTE).enabled);
    }
    EXPECT_EQ(ForeignData::questions, 0);
    Offer(new ForeignData({"image/bmp", "image/png", "image/x-portable-pixmap"}, "x", 1200));
    QElapsedTimer clock;
    clock.start();
    Send(ID_EDIT_PASTE);
    EXPECT_LT(clock.elapsed(), 2300);
    EXPECT_FALSE(document->IsModified());
}
