#include "RenderCommand.h"

#include "CanvasImage.h"
#include "DiffCommand.h"
#include "SceneExtent.h"
#include "TemplateCommands.h"
#include "ToolArguments.h"
#include "ToolSession.h"
#include "canvas/DiffOverlay.h"
#include "diff/DocumentDiff.h"

#include <QFile>
#include <QGuiApplication>
#include <QSaveFile>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>

namespace {

// Room around the scene, in pixels.
constexpr int kMargin = 20;
// Pictures beyond this are refused rather than left to exhaust the memory.
constexpr std::int64_t kMaxSide = 16384;
constexpr std::int64_t kMaxPixels = std::int64_t{64} * 1024 * 1024;

void ShowAllLayers(lw::EditorOptions& layers, bool shown) {
    layers.DrawInputOutputs = layers.DrawSwitchAndCases = layers.DrawChecks = layers.DrawActions =
        layers.DrawGeometry = shown;
}

// A comma-separated choice of io, cases, checks, actions, geometry and all.
bool ParseLayers(const std::string& list, lw::EditorOptions& layers, std::string& error) {
    ShowAllLayers(layers, false);
    std::istringstream words(list);
    std::string word;
    while (std::getline(words, word, ',')) {
        if (word == "all")
            ShowAllLayers(layers, true);
        else if (word == "io")
            layers.DrawInputOutputs = true;
        else if (word == "cases")
            layers.DrawSwitchAndCases = true;
        else if (word == "checks")
            layers.DrawChecks = true;
        else if (word == "actions")
            layers.DrawActions = true;
        else if (word == "geometry")
            layers.DrawGeometry = true;
        else {
            error = "unknown layer \"" + word + "\"";
            return false;
        }
    }
    if (list.empty() || list.back() == ',')
        error = "--layers needs a list of layers";
    return error.empty();
}

// The canvas zooms from 0.01 to 2.
bool ParseScale(const std::string& text, float& scale, std::string& error) {
    char* end = nullptr;
    scale = std::strtof(text.c_str(), &end);
    const bool whole = !text.empty() && end == text.c_str() + text.size();
    if (!whole || !(scale >= 0.01f && scale <= 2.0f)) {
        error = "--scale needs a number from 0.01 to 2";
        return false;
    }
    return true;
}

bool WritePng(const QImage& image, const std::string& path) {
    QSaveFile file(QFile::decodeName(QByteArray::fromStdString(path)));
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

// Draws the whole scene into the PNG file `out`; false, with the reason
// printed, for a picture too large to make or one that cannot be written.
bool WritePicture(const lw::Weaver& weaver, float scale, const std::string& out,
                  const lw::SceneOverlay& overlay) {
    // A canvas at scale 1 has never been zoomed; at any other it has.
    const lw::CanvasFont font = lw::CanvasFontAt(scale, scale != 1.0f);
    const lw::SceneFrame frame = lw::FrameWholeScene(weaver, scale, font, kMargin, overlay);
    if (frame.width > kMaxSide || frame.height > kMaxSide ||
        frame.width * frame.height > kMaxPixels) {
        std::cerr << "loomwright-tool: the picture would be " << frame.width << " by "
                  << frame.height << " pixels; choose a smaller --scale\n";
        return false;
    }
    const QSize size(static_cast<int>(frame.width), static_cast<int>(frame.height));
    const QImage image = lw::PaintCanvasImage(weaver, frame.view, font, size, 1.0, overlay);
    if (image.isNull() || !WritePng(image, out)) {
        std::cerr << "loomwright-tool: can't write the picture " << out << "\n";
        return false;
    }
    return true;
}

// Qt's notes about its surroundings, such as a missing runtime folder, are not
// messages of the template; only its errors are shown.
void ShowQtErrorsOnly(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::cerr << message.toStdString() << "\n";
}

int UsageError(const std::string& error, const char* usage) {
    std::cerr << "loomwright-tool: " << error << "\n" << usage;
    return kFailure;
}

} // namespace

int RunRenderCommand(const ToolArguments& arguments, const char* usage) {
    lw::EditorOptions layers;
    ShowAllLayers(layers, true);
    float scale = 1.0f;
    std::string error;
    const auto layerList = arguments.values.find(kLayersOption);
    if (layerList != arguments.values.end())
        ParseLayers(layerList->second, layers, error);
    const auto scaleText = arguments.values.find(kScaleOption);
    if (error.empty() && scaleText != arguments.values.end())
        ParseScale(scaleText->second, scale, error);
    if (!error.empty())
        return UsageError(error, usage);

    // Pictures are made where there may be no display at all.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ShowQtErrorsOnly);
    int argc = 1;
    char program[] = "loomwright-tool";
    char* argv[] = {program, nullptr};
    QGuiApplication application(argc, argv);

    ToolSession session(arguments.dataFolder);
    lw::Weaver& weaver = session.weaver;
    const bool loaded = weaver.LoadTemplateFile(CommandLinePath(arguments.positional[0]));
    const std::vector<std::string> messages = session.TakeMessages();
    PrintLines(std::cout, messages);
    if (!loaded)
        return kFailure;

    // The session stores no options, so all of them may be replaced by the
    // ones that choose the layers.
    weaver.options = layers;
    lw::SceneOverlay overlay;
    std::unique_ptr<ModelSession> older;
    const auto oldTemplate = arguments.values.find(kDiffOption);
    if (oldTemplate != arguments.values.end()) {
        older = std::make_unique<ModelSession>(arguments.dataFolder);
        if (!LoadForComparison(*older, oldTemplate->second))
            return kFailure;
        overlay = [diff = lw::CompareDocuments(older->workspace, weaver), &older,
                   &weaver](lw::DrawingSurface& surface, const lw::ViewTransform& view) {
            lw::PaintDiffOverlay(surface, diff, older->workspace, weaver, view);
        };
    }
    if (!WritePicture(weaver, scale, arguments.positional[1], overlay))
        return kFailure;
    return messages.empty() ? kNoMessage : kMessageShown;
}
