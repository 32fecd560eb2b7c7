#include "formats/Codec.h"
#include "framework/core/FileFailure.h"
#include "framework/core/Path.h"
#include "resources/streams/ArchiveTransfer.h"
#include "tool/FolderMetadata.h"
#include "tool/OutputPlace.h"
#include "tool/PackSources.h"
#include "tool/PaletteLoader.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/archives/ArchiveContents.h"
#include "tool/archives/LumpEncoder.h"
#include "tool/pictures/PictureFormat.h"

#include <algorithm>

namespace keltavlo {

namespace {

ArchiveKind KindOf(const ToolArguments& arguments) {
    const std::string_view extension = ExtensionOf(arguments.output);
    if (EqualNoCase(extension, ".wad")) {
        if (!arguments.format.empty()) throw UsageError("--to is for packs; a WAD contains MIP textures.");
        return arguments.wad2 ? ArchiveKind::wad2 : ArchiveKind::wad3;
    }
    if (!EqualNoCase(extension, ".pak")) throw UsageError("The name of the output must end in .pak or .wad.");
    if (arguments.wad2) throw UsageError("--wad2 requires an output that ends in .wad.");
    const PictureFormat* format = FindPictureFormat(arguments.format);
    if (!arguments.format.empty() && (!format || !format->codec.write))
        throw UsageError("--to requires " + ListWritableFormats() + ".");
    return ArchiveKind::pak;
}

std::unique_ptr<CFile> OpenSource(const std::string& path) {
    return FileOrThrow(
        [&](CFileException* failure) { return FileSource::Get().OpenFile(path, CFile::modeRead, failure); });
}

// One run of the command. Everything that can go wrong is found, and reported, before the archive is written.
class PackRun {
public:
    PackRun(Tool& reportingTool, const ToolArguments& toolArguments)
        : tool(reportingTool), arguments(toolArguments), target(FullPath(arguments.output)),
          outputs(tool, arguments.force || IsEdit()) {
        contents.kind = KindOf(arguments);
    }

    void Run() {
        if (IsEdit() && !ReadTarget()) return;
        if (arguments.remove)
            Remove();
        else
            Add();
        if (failed) return tool.Fail("\"" + ToDisplayPath(target) + "\" was not written.");
        outputs.Write(target, WriteThroughArchive([&](OutputStream& out) { WriteArchive(out, contents); }));
        outputs.Finish();
    }

private:
    bool IsEdit() const { return arguments.append || arguments.replace || arguments.remove; }

    // False, after reporting why, if the archive that is to change cannot be read.
    bool ReadTarget() {
        const ArchiveKind kind = contents.kind;
        try {
            contents = ReadArchive(OpenSource(target));
        } catch (const CException& failure) {
            tool.Fail(DescribeFailure(Direction::opening, target, failure));
            return false;
        }
        if (IsWAD(contents.kind) != IsWAD(kind))
            tool.Fail("\"" + ToDisplayPath(target) + "\" is not the kind of archive that its name says.");
        else if (contents.kind == ArchiveKind::wad3 && arguments.wad2)
            tool.Fail("\"" + ToDisplayPath(target) + "\" is a WAD3, but --wad2 was given.");
        return !tool.HasFailed();
    }

    void Fail(const std::string& sentence) {
        failed = true;
        tool.Fail(sentence);
    }

    void FailAll(const std::vector<std::string>& sentences) {
        for (const std::string& sentence : sentences) Fail(sentence);
    }

    std::vector<PackSource> GatherSources() {
        std::vector<PackSource> all;
        for (const std::string& input : arguments.inputs)
            std::ranges::move(GatherPackSources(tool, input, outputs), std::back_inserter(all));
        StoredMetadata metadata(tool);
        for (PackSource& source : all) source.fields = metadata.Find(source.path);
        failed = failed || tool.HasFailed();
        return all;
    }

    void Add() {
        PackPlan plan(contents.kind, arguments.format);
        for (const PackSource& source : GatherSources()) plan.Add(source);
        FailAll(plan.GetComplaints());
        const ArchiveEdit edit =
            IsEdit() ? ArchiveEdit{arguments.append, arguments.replace} : ArchiveEdit{true, false};
        FailAll(AddItems(contents, MakeItems(plan.GetEntries()), edit));
        FailAll(TellSurplus(contents));
    }

    void Remove() {
        std::vector<std::string> names;
        for (const std::string& input : arguments.inputs)
            for (const std::string& name : NamesOf(input)) names.push_back(EntryNameOf(contents.kind, name));
        FailAll(RemoveItems(contents, names));
    }

    // The names in a list, whose files may be gone, or those of the files in a folder.
    std::vector<std::string> NamesOf(const std::string& input) {
        CFileStatus status;
        const std::string path = FullPath(input);
        if (CFile::GetStatus(path, status) && !status.IsDirectory()) return ReadPathList(path);
        std::vector<std::string> names;
        for (const PackSource& source : GatherPackSources(tool, input, outputs)) names.push_back(source.name);
        failed = failed || tool.HasFailed();
        return names;
    }

    std::vector<ArchiveItem> MakeItems(const std::vector<PlannedEntry>& entries) {
        const PaletteSet palettes = LoadPalettes(arguments.palette);
        const LumpEncoder encoder(contents.kind, palettes, arguments.palette);
        std::vector<ArchiveItem> items;
        for (const PlannedEntry& entry : entries) {
            tool.ShowProgress(entry.source.name);
            try {
                items.push_back(MakeItem(entry, encoder));
            } catch (const CException& failure) {
                Fail("\"" + entry.source.name + "\" does not fit: " + failure.what());
            }
        }
        return items;
    }

    // Pictures are made at once, to see whether they fit; other files are only opened.
    ArchiveItem MakeItem(const PlannedEntry& entry, const LumpEncoder& encoder) {
        const std::unique_ptr<CFile> file = OpenSource(entry.source.path);
        if (entry.format.empty())
            return {entry.name, entry.type,
                    [path = entry.source.path] { return ReadAll(*OpenSource(path)); }};
        std::vector<std::byte> bytes = ReadAll(*file);
        ConvertedFile lump = encoder.Encode(bytes, entry);
        for (const std::string& note : lump.notes) tool.Note("\"" + entry.source.name + "\" " + note);
        return {entry.name, entry.type, [made = std::move(lump.bytes)]() mutable { return std::move(made); }};
    }

    Tool& tool;
    const ToolArguments& arguments;
    std::string target;
    ArchiveContents contents;
    OutputPlace outputs;
    bool failed = false;
};

} // namespace

void Pack(Tool& tool, const ToolArguments& arguments) {
    if (arguments.remove && (arguments.append || arguments.replace))
        throw UsageError("--delete cannot be combined with --append or --replace.");
    PackRun(tool, arguments).Run();
}

} // namespace keltavlo
