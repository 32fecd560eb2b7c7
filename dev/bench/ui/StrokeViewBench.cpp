#include "app/ui/CKelTavloApp.h"
#include "app/ui/MainFrame.h"
#include "formats/TextureBytes.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CView.h"
#include "framework/ui/Commands.h"
#include "image/TavloDocument.h"
#include "res/CommandIds.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "resources/PaletteDocument.h"
#include "support/builders/PackBuilder.h"

#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <chrono>
#include <random>

namespace keltavlo {

namespace {

constexpr int side = 1024;
constexpr QSize windowSize(1920, 1080);

enum Step : std::uint8_t { press, move, release };

// The program with a picture of random colors, shown as dithered to a palette in a maximized window.
class StrokeProgram {
public:
    explicit StrokeProgram(bool dithered) {
        program.InitInstance({PutPicture()});
        program.GetMainFrame()->resize(windowSize);
        program.GetMainFrame()->MDIGetActive()->showMaximized();
        view = program.GetMainFrame()->MDIGetActive()->GetActiveView();
        auto* document = dynamic_cast<TavloDocument*>(view->GetDocument());
        document->SetCurrentBrush(Open<BrushDocument>(texelBrushFile));
        document->SetCurrentPalette(Open<PaletteDocument>(quake2Palette));
        if (dithered) SendCommand(*program.GetMainFrame(), ID_FILTER_DITHER);
        QCoreApplication::processEvents();
    }

    // Returns the seconds until the view is painted.
    double Do(Step step) {
        program.SetCurrentColor(RandomColor());
        const QPointF place = RandomPlace();
        constexpr QEvent::Type types[] = {QEvent::MouseButtonPress, QEvent::MouseMove,
                                          QEvent::MouseButtonRelease};
        QMouseEvent event(types[step], place, view->mapToGlobal(place),
                          step == move ? Qt::NoButton : Qt::LeftButton,
                          step == release ? Qt::NoButton : Qt::LeftButton, {});
        const auto start = std::chrono::steady_clock::now();
        QCoreApplication::sendEvent(view, &event);
        QCoreApplication::processEvents();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    template <class Document>
    static Document* Open(BuiltInFile file) {
        return dynamic_cast<Document*>(BaseDocument::OpenReference(GetBuiltInPath(file)));
    }

    QPoint RandomPlace() {
        return {std::uniform_int_distribution(0, view->width() - 1)(random),
                std::uniform_int_distribution(0, view->height() - 1)(random)};
    }
    Color RandomColor() { return static_cast<Color>(random()) | alphaMask; }

    std::string PutPicture() {
        Texture picture(side, side);
        for (Color& pixel : picture.Pixels()) pixel = RandomColor();
        const std::string path = folder.filePath("picture.tga").toStdString();
        WriteFile(path, EncodeTexture(*FindCodec("TGADocument"), picture, nullptr));
        return path;
    }

    std::mt19937 random{1};
    QTemporaryDir folder;
    CKelTavloApp program{ProfileStore(folder.filePath("settings").toStdString())};
    CView* view;
};

// One step of a stroke, with all events that follow it. Arguments: the step, whether the picture is dithered.
void StrokeView(benchmark::State& state) {
    StrokeProgram program(state.range(1) != 0);
    for (auto _ : state)
        for (const Step step : {press, move, release}) {
            const double seconds = program.Do(step);
            if (step == state.range(0)) state.SetIterationTime(seconds);
        }
}
BENCHMARK(StrokeView)
    ->ArgsProduct({{press, move, release}, {0, 1}})
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime();

} // namespace

} // namespace keltavlo
