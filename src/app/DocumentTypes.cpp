#include "app/DocumentTypes.h"

#include "archives/PAKDocument.h"
#include "archives/ResourceDocument.h"
#include "archives/WADDocument.h"
#include "framework/core/CWinApp.h"
#include "image/ImageDocuments.h"
#include "preview3d/MD2Document.h"
#include "preview3d/MDLDocument.h"
#include "res/Menus.h"
#include "res/StringIds.h"
#include "resources/Brush.h"
#include "resources/PaletteDocument.h"

namespace keltavlo {

namespace {

using Row = CDocTemplate::Row;

Row ImageType(unsigned id, const CRuntimeClass& documentClass) {
    return {id, IDR_DOCUMENT, &documentClass, "TavloViewFrame", "TavloView"};
}

Row ModelType(unsigned id, const CRuntimeClass& documentClass, const char* view) {
    return {id, IDR_DOCUMENT, &documentClass, "ChildFrame", view};
}

// Types of documents that others use. They have no windows of their own.
Row HiddenType(unsigned id, const CRuntimeClass& documentClass) {
    return {id, IDR_MAINFRAME, &documentClass, "HiddenChildFrame", "HiddenView"};
}

} // namespace

// The order determines the list of File New and the type for a file with an unknown extension.
void RegisterDocumentTypes(CWinApp& application) {
    const Row rows[] = {
        ImageType(IDR_BITMAP, BMPDocument::runtimeClass),
        ImageType(IDR_MIPMAP, MIPDocument::runtimeClass),
        ImageType(IDR_PCX, PCXDocument::runtimeClass),
        ImageType(IDR_TARGA, TGADocument::runtimeClass),
        ImageType(IDR_WAL, WALDocument::runtimeClass),
        ModelType(IDR_MDL, MDLDocument::runtimeClass, "ModelView"),
        ModelType(IDR_MD2, MD2Document::runtimeClass, "MD2View"),
        HiddenType(IDR_RESOURCES, ResourceDocument::runtimeClass),
        HiddenType(IDR_PAK, PAKDocument::runtimeClass),
        HiddenType(IDR_WAD, WADDocument::runtimeClass),
        HiddenType(IDR_COLOR_SPACE, ColorSpaceDocument::runtimeClass),
        HiddenType(IDR_COLOR_TABLE, ColorTableDocument::runtimeClass),
        HiddenType(IDR_LMP, LMPDocument::runtimeClass),
        HiddenType(IDR_BRUSH, BrushDocument::runtimeClass),
    };
    for (const Row& row : rows) application.AddDocTemplate(std::make_unique<CDocTemplate>(row));
}

} // namespace keltavlo
