// fuzz/: target: glyph images of other programs: any bytes as a PNG, or a picture of any shape and
// format. They are loaded and drawn as elements of each kind of clock, and as the dial of a picture
// clock.
#include "fuzz_input.h"
#include "fuzz_scene.h"
#include "fuzz_target.h"

#include "clock_attributes.h"
#include "compose/draw_clock_classify_image.h"
#include "display/draw_display_image.h"
#include "display/style_pictures.h"
#include "glyph/glyph_set.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>

using namespace Lw::HNodeClock;

namespace {

constexpr int kMaxImages = 4;
constexpr int kFrames = 3;

/// A style of the picture clock for this process only.
class OwnDial
{
public:
    OwnDial() { QDir().mkpath(StyleFolder()); }
    ~OwnDial() { QFile::remove(Path()); }
    Q_DISABLE_COPY(OwnDial)

    static int Style() { return static_cast<int>(QCoreApplication::applicationPid()); }
    static QString Path() { return StyleFolder() + DialPicture(Style()); }
};

// The plugin decodes small files when they are first shown, and large ones when it loads them.
void WriteBytes(const QString &path, Fuzz::Input &input)
{
    const bool isLong = input.Choice(8) == 1;
    const QByteArray bytes = input.Rest();
    QFile::remove(path);
    QFile file(path);
    if (file.open(QFile::WriteOnly))
        file.write(isLong ? bytes + QByteArray(64 << 10, '\0') : bytes);
}

// A valid picture file of a shape that the plugin's generator never makes.
void WritePicture(const QString &path, Fuzz::Input &input)
{
    static constexpr QImage::Format kFormats[] = {QImage::Format_ARGB32,
                                                  QImage::Format_RGB32,
                                                  QImage::Format_Mono,
                                                  QImage::Format_Indexed8,
                                                  QImage::Format_Grayscale8,
                                                  QImage::Format_RGBA64,
                                                  QImage::Format_ARGB32_Premultiplied};
    const QImage::Format format = kFormats[input.Choice(static_cast<int>(std::size(kFormats)))];
    const bool isWide = input.Choice(8) == 1;
    const int width = 1 + input.Byte() * (isWide ? 128 : 1);
    const int height = 1 + input.Byte() / 4;
    QImage picture(width, height, format);
    if (format == QImage::Format_Indexed8 || format == QImage::Format_Mono)
        picture.setColorTable({0xff102030, 0x00000000});
    picture.fill(0);
    const QByteArray pattern = input.Text().toLatin1();
    for (int i = 0; i < pattern.size(); ++i)
        picture.setPixel(i * 7 % width, i % height,
                         picture.colorCount() > 0 ? uint(pattern[i] & 1)
                                                  : uint(pattern[i]) * 0x01010101u);
    QFile::remove(path);
    picture.save(path, input.Choice(4) == 1 ? "bmp" : "png");
}

// Frames now, a second later, and half a day after that.
void DrawFrames(HClockNode &node)
{
    DrawDisplayImage drawer(&node);
    drawer.InitClockTypePixmap();
    for (int i = 0; i < kFrames; ++i) {
        const QImage frame = drawer.DrawClockDisplayImage();
        Fuzz::Expect(frame.size() == node.Size(), "a frame has the node's size");
        Fuzz::AdvanceTime(i == 0 ? 1000 : 86400000 / 2);
    }
}

void Compose(HClockNode &node)
{
    DrawClockClassifyImage composer;
    composer.InitParameters(&node);
    composer.GetDatePixmap();
    composer.GetTimePixmap();
    composer.GetWeeKPixmap();
    composer.GetLunarPixmap();
    composer.GetTopTextPixmap();
}

void ReplaceImages(HClockNode &node, Fuzz::Input &input)
{
    const QString foreign = Fuzz::Directory() + QStringLiteral("foreign.png");
    const QVector<GlyphImage> glyphs = GlyphImages(GlyphOrder::Generation, node.ClockType());
    const int images = 1 + input.Choice(kMaxImages);
    for (int i = 0; i < images; ++i) {
        // All images of a row are replaced, so that they are drawn in any month and on any weekday.
        const GlyphRow *const row = glyphs[input.Choice(glyphs.size())].row;
        for (const GlyphImage &image : glyphs) {
            if (image.row == row)
                node.SetFilePath(image.Key(), foreign, QString(), -1, kImageFileKind);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const OwnDial dial;
    Fuzz::Input input(data, size);
    const int type = input.Choice(3);
    HClockNode node;
    Fuzz::MakeScene(node, type);
    Fuzz::SetTime(1709644062000); // 2024-03-05T13:07:42Z
    node.SetAttribute(
        Key(type == AnalogClock ? Attribute::AnalogDateType : Attribute::DigitalDateType),
        input.Choice(9), false);
    node.SetAttribute(Key(Attribute::DigitalTimeType), input.Choice(5), false);
    node.SetAttribute(Key(Attribute::DigitalMode), input.Choice(2), false);
    node.SetAttribute(Key(Attribute::PictrueClockType), OwnDial::Style(), false);
    if (type != PictureClock)
        ReplaceImages(node, input);
    const QString path =
        type == PictureClock ? OwnDial::Path() : Fuzz::Directory() + QStringLiteral("foreign.png");
    if (input.Choice(2) == 0)
        WritePicture(path, input);
    else
        WriteBytes(path, input);
    DrawFrames(node);
    Compose(node);
    return 0;
}
