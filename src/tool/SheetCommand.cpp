#include "formats/TextureBytes.h"
#include "framework/core/CFile.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/NameEscapes.h"
#include "tool/OutputPlace.h"
#include "tool/PaletteLoader.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"
#include "tool/pictures/PictureConversion.h"
#include "tool/pictures/PictureFormat.h"
#include "tool/sheets/SheetPage.h"

namespace keltavlo {

namespace {

constexpr std::string_view sheetExtension = ".png";

// Draws the pictures of a tree on pages.
class ContactSheet {
public:
    ContactSheet(Tool& reportingTool, const ToolArguments& toolArguments)
        : tool(reportingTool), arguments(toolArguments), tree(TreePath(toolArguments.inputs.front())),
          outputs(reportingTool, toolArguments.force), palettes(LoadPalettes(toolArguments.palette)) {}

    void Run() {
        const std::vector<TreeFile> pictures = FindPictures();
        if (pictures.empty()) return tool.Fail("\"" + ToDisplayPath(tree) + "\" contains no pictures.");
        const std::size_t pages = (pictures.size() + SheetPage::capacity - 1) / SheetPage::capacity;
        for (std::size_t page = 0; page < pages; ++page) {
            const std::size_t first = page * SheetPage::capacity;
            const std::size_t count = std::min(SheetPage::capacity, pictures.size() - first);
            WritePage(std::span(pictures).subspan(first, count), page + 1, pages);
        }
        outputs.Finish();
        tool.ShowProgress({});
    }

private:
    std::vector<TreeFile> FindPictures() {
        std::vector<TreeFile> files = ListTree(
            tool, tree, arguments.enterArchives ? NestedArchives::entered : NestedArchives::asFiles, outputs);
        std::erase_if(files, [](const TreeFile& file) { return !FindPictureFormat(file.name); });
        return files;
    }

    void WritePage(std::span<const TreeFile> pictures, std::size_t number, std::size_t pages) {
        SheetPage page(EscapeName(FileNameOf(tree)) + ", page " + std::to_string(number) + " of " +
                           std::to_string(pages),
                       pictures.size());
        for (const TreeFile& picture : pictures) AddPicture(picture, page);
        outputs.Write(PathOfPage(number),
                      EncodeTexture(FindPictureFormat(sheetExtension)->codec, page.GetPicture(), nullptr));
    }

    void AddPicture(const TreeFile& picture, SheetPage& page) {
        tool.ShowProgress(picture.name);
        const std::string name = EscapePath(picture.name);
        try {
            page.Add(name, ReadPicture(*OpenSource(picture), picture.name, palettes, arguments.palette));
        } catch (const CException& failure) {
            page.AddMissing(name);
            tool.Fail(DescribeFailure(Direction::opening, picture.path, failure));
        }
    }

    // The first page has the name of the output; the others get numbers.
    std::string PathOfPage(std::size_t number) const {
        std::string path = FullPath(arguments.output);
        if (number == 1) return path;
        const std::string_view extension = ExtensionOf(path);
        const std::string stem = path.substr(0, path.size() - extension.size());
        return (stem + "-" + std::to_string(number)).append(extension);
    }

    Tool& tool;
    const ToolArguments& arguments;
    const std::string tree;
    OutputPlace outputs;
    PaletteSet palettes;
};

} // namespace

void MakeSheet(Tool& tool, const ToolArguments& arguments) {
    if (!EqualNoCase(ExtensionOf(arguments.output), sheetExtension))
        throw UsageError("The name of a contact sheet must end in .png.");
    EntryStatus status;
    const std::string path = TreePath(arguments.inputs.front());
    tool.GetApplication().GetFileSystem().GetStatus(path, status);
    if (!status.exists) return FailToFind(tool, path);
    if (!IsTree(status)) return tool.Fail("\"" + ToDisplayPath(path) + "\" is not a folder or an archive.");
    ContactSheet(tool, arguments).Run();
}

} // namespace keltavlo
