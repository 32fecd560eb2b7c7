#include "image/ui/ClipboardPicture.h"

#include "framework/ui/CClipboard.h"
#include "image/picture/ColorList.h"
#include "support/ui/TavloViewFixture.h"

namespace keltavlo {

namespace {

// Data from a slow program. Counts how often it is asked.
struct ForeignData : QMimeData {
    ForeignData(QStringList offered, QByteArray content, int milliseconds)
        : forms(std::move(offered)), bytes(std::move(content)), delay(milliseconds) {}

    static inline int questions = 0;
    QStringList formats() const override {
        ++questions;
        return forms;
    }
    QVariant retrieveData(const QString&, QMetaType) const override {
        ++questions;
        QTest::qSleep(delay);
        return bytes;
    }

    QStringList forms;
    QByteArray bytes;
    int delay;
};

QByteArray Encode(const QImage& image, const char* format) {
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

struct ClipboardPictureTest : TavloViewFixture {
    ~ClipboardPictureTest() override { QGuiApplication::clipboard()->clear(); }

    static void Offer(const QStringList& formats, const QByteArray& bytes, int milliseconds = 0) {
        QGuiApplication::clipboard()->setMimeData(new ForeignData(formats, bytes, milliseconds));
    }
};

} // namespace

TEST_F(ClipboardPictureTest, CopyOffersThePictureAsItWasThen) {
    GetTexture().SetPixel(3, 1, 0x40102030);
    EXPECT_TRUE(Send(ID_EDIT_COPY));
    GetTexture().SetPixel(3, 1, 0);
    const QMimeData& offered = *QGuiApplication::clipboard()->mimeData();
    const QByteArray bitmap = offered.data("image/bmp");
    ASSERT_EQ(bitmap.size(), 54 + 64 * 32 * 4);
    const qsizetype texel = 54 + ((32 - 1 - 1) * 64 + 3) * 4; // rows are stored from the bottom
    EXPECT_EQ(bitmap.mid(texel, 4), QByteArray("\x30\x20\x10\x40"));
    QImage png;
    ASSERT_TRUE(png.loadFromData(offered.data("image/png")));
    EXPECT_EQ(png.pixel(3, 1), 0x40102030U);
    EXPECT_EQ(png, offered.imageData().value<QImage>());
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
    EXPECT_EQ(GetTexture().GetPixel(0, 0), 0x40102030U);
    EXPECT_TRUE(GetTexture().palette);
    EXPECT_EQ(GetTexture().quake2, before.quake2);
    Send(ID_EDIT_REDO);
    EXPECT_FALSE(GetTexture().palette);
}

TEST_F(ClipboardPictureTest, TakesPicturesOfOtherProgramsInManyForms) {
    QImage image(100, 30, QImage::Format_ARGB32);
    image.fill(0x80FF4020);
    for (const auto& [type, format] :
         {std::pair{"image/png", "PNG"}, {"image/bmp", "BMP"}, {"image/x-portable-pixmap", "PPM"}}) {
        Offer({type}, Encode(image, format));
        ASSERT_TRUE(Send(ID_EDIT_PASTE)) << type;
        EXPECT_EQ(GetTexture().GetWidth(), 100);
        EXPECT_EQ(Alpha(GetTexture().GetPixel(99, 29)), 255U);
        EXPECT_EQ(document->GetHistory().TopUndoName(), "Paste");
        Send(ID_EDIT_UNDO);
        EXPECT_EQ(GetTexture().GetWidth(), 64);
    }
    EXPECT_EQ(QImageReader::allocationLimit(), 1024) << "mebibytes, as in files";
}

TEST_F(ClipboardPictureTest, DamagedDataLeavesTheDocumentAsItWas) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QByteArray png = Encode(image, "PNG");
    constexpr qsizetype headerOffset = 16, headerSize = 17; // including its checksum
    const std::pair<const char*, QByteArray> cases[] = {
        {"image/bmp", {}},
        {"image/bmp", "no bitmap"},
        {"image/bmp", Encode(image, "BMP").chopped(1)},
        {"image/png", {}},
        {"image/png", png.first(png.size() / 2)},
        {"image/png",
         QByteArray(png).replace(headerOffset, headerSize,
                                 QByteArray::fromHex("00007530000075300802000000e9456fed"))}, // 30000 x 30000
        {"application/x-qt-image", "no picture"},
    };
    const Texture before = GetTexture();
    for (const auto& [type, bytes] : cases) {
        Offer({type}, bytes);
        EXPECT_TRUE(Send(ID_EDIT_PASTE)) << type;
        EXPECT_FALSE(document->IsModified()) << type;
        EXPECT_TRUE(std::ranges::equal(GetTexture().Pixels(), before.Pixels())) << type;
    }
    Offer({"text/plain"}, "text");
    EXPECT_FALSE(Send(ID_EDIT_PASTE));
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(Send(ID_EDIT_PASTE));
}

TEST_F(ClipboardPictureTest, AsksTheOwnerOnlyWhenSomethingChangesAndOnlyOnce) {
    Offer({"image/png"}, "x");
    ForeignData::questions = 0;
    for (int i = 0; i < 100; ++i) {
        GetMainFrame().OnIdle();
        EXPECT_TRUE(StateOf(ID_EDIT_PASTE).enabled);
    }
    EXPECT_EQ(ForeignData::questions, 0);
    Offer({"image/bmp", "image/png", "image/x-portable-pixmap"}, "x", 1200);
    QElapsedTimer clock;
    clock.start();
    Send(ID_EDIT_PASTE);
    EXPECT_LT(clock.elapsed(), 2300);
    EXPECT_FALSE(document->IsModified());
}

} // namespace keltavlo
