#include "app/ui/FileDialogServices.h"

#include "app/PictureFiles.h"
#include "archives/ui/FileTypeProvider.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/MessageBoxes.h"
#include "image/TavloDocument.h"
#include "image/picture/TilePainter.h"
#include "res/ShellStrings.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/Shell.h"

namespace keltavlo {

namespace {

void AddFilter(std::vector<FileFilter>& filters, std::string_view label, std::string_view patterns) {
    filters.push_back({std::string(label), std::string(patterns), PictureExtensionIn(patterns)});
}

QImage ToImage(const Image& picture) {
    QImage image(picture.GetWidth(), picture.GetHeight(), QImage::Format_RGB32);
    if (image.isNull()) return image; // no pixels, or not enough memory
    PaintTiles(picture, Shell::Get().GetGammaTable(), {},
               {0, 0, image.width(), image.height(), reinterpret_cast<Color*>(image.bits()),
                static_cast<std::size_t>(image.bytesPerLine()) / sizeof(Color)});
    return image;
}

} // namespace

std::vector<FileFilter> BuildFileFilters(const FileNameQuestion& question) {
    std::vector<FileFilter> filters;
    if (question.type) {
        const std::string name = question.type->GetDocString(CDocTemplate::filterName);
        const std::string extension = question.type->GetDocString(CDocTemplate::filterExt);
        if (!name.empty() && !extension.empty()) AddFilter(filters, name, "*" + extension);
    }
    const std::string pairs = LoadString(question.open ? IDS_OPEN_FILTERS : IDS_SAVE_FILTERS);
    for (std::size_t i = 0;; i += 2) {
        const std::string_view label = Field(pairs, '\n', i);
        if (label.empty()) break;
        AddFilter(filters, label, Field(pairs, '\n', i + 1));
    }
    AddFilter(filters, LoadString(AFX_IDS_ALLFILTER), "*.*");
    return filters;
}

Preview ReadPicturePreview(const std::string& path) {
    try {
        const std::unique_ptr<TavloDocument> document = ReadForPreview(path);
        if (!document) return {{}, ToQString(LoadString(IDS_NO_PICTURE))};
        const Texture& texture = document->GetTexture();
        const std::string size = FormatString(IDS_PREVIEW_SIZE, texture.GetWidth(), texture.GetHeight());
        return {ToImage(texture), ToQString(size) + '\n' + TypeNameOfFile(path)};
    } catch (const std::exception&) {
        return {{}, ToQString(LoadString(IDS_NO_PREVIEW))};
    }
}

bool MaySave(const FileNameQuestion& question, const std::string& path) {
    const DocTemplateRegistry& registry = DocTemplateRegistry::Get();
    const CRuntimeClass* written = registry.GetDocumentClassOfName(path);
    const bool isPicture =
        question.type && question.type->GetDocumentClass().IsDerivedFrom(TavloDocument::runtimeClass);
    if (!isPicture || !written || registry.KnowsName(path)) return true;
    const std::string format = registry.FindTemplate(*written)->GetDocString(CDocTemplate::regFileTypeName);
    return AskYesNo(FormatString(IDS_UNKNOWN_FORMAT, ToDisplayPath(path).c_str(), format.c_str()));
}

} // namespace keltavlo
