#include "framework/core/DiskFile.h"
#include "framework/core/Path.h"
#include "resources/streams/ArchiveTransfer.h"
#include "tool/FolderMetadata.h"
#include "tool/OutputPlace.h"
#include "tool/PackSources.h"
#include "tool/PaletteLoader.h"
#include "tool/RunReport.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/TreeWalk.h"
#include "tool/archives/ArchiveContents.h"
#include "tool/archives/LumpEncoder.h"
#include "tool/output/Interruption.h"
#include "tool/output/OrderedWork.h"
#include "tool/pictures/PictureFormat.h"

#include <algorithm>
#include <mutex>

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

// The result of a thread's work on a file.
struct MadeItem {
    ArchiveItem item;
    std::vector<std::string> notes;
    std::string failure; // a sentence; empty if there is none
};

// A run of the command. Finds and reports everything that can go wrong before it writes the archive.
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
        const bool isWritten = outputs.Write(
            target, WriteThroughArchive([&](OutputStream& out) { WriteArchive(out, contents); }));
        if (isWritten && outputs.Finish() && !arguments.quiet)
            tool.Note("\"" + ToDisplayPath(target) + "\" was written with " +
                      std::to_string(contents.items.size()) + " entries.");
    }

private:
    bool IsEdit() const { return arguments.append || arguments.replace || arguments.remove; }

    // If the archive to change cannot be read, reports why and returns false.
    bool ReadTarget() {
        const ArchiveKind kind = contents.kind;
        try {
            contents = ReadArchive(std::make_unique<DiskFile>(target, CFile::modeRead));
        } catch (const CException& failure) {
            tool.Fail(DescribeFailure(Direction::opening, target, failure));
            return false;
        }
        if (IsWAD(contents.kind) != IsWAD(kind))
            tool.Fail("\"" + ToDisplayPath(target) +
                      "\" is not the kind of archive that its extension says.");
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

    // Returns the names in a list, even of files that are gone, or the names of the files in a folder.
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
        const unsigned threadCount = ThreadCount(arguments.jobs);
        RunReport report(tool, arguments, "packed", entries.size());
        std::vector<ArchiveItem> items;
        OrderedWork<MadeItem> work(entries.size(), std::size_t{4} * threadCount,
                                   [&](std::size_t i) { return Make(entries[i], encoder); });
        work.Run(threadCount, [&](std::size_t i, MadeItem made) {
            report.ShowProgress(entries[i].source.name);
            Take(entries[i], made, report);
            items.push_back(std::move(made.item));
            return Interruption::GetSignal() == 0;
        });
        tool.ShowProgress({});
        if (const int signal = Interruption::GetSignal()) throw InterruptedError(signal);
        return items;
    }

    // Runs in any thread. Encodes pictures at once, to see whether they fit; only opens other files.
    MadeItem Make(const PlannedEntry& entry, const LumpEncoder& encoder) {
        MadeItem made{{entry.name, entry.type, {}}, {}, {}};
        try {
            const std::unique_ptr<CFile> file = Open(entry.source);
            if (entry.format.empty()) {
                made.item.read = [this, source = entry.source] { return ReadAll(*Open(source)); };
            } else {
                std::vector<std::byte> bytes = ReadAll(*file);
                ConvertedFile lump = encoder.Encode(bytes, entry);
                made.notes = std::move(lump.notes);
                made.item.read = [encoded = std::move(lump.bytes)]() mutable { return std::move(encoded); };
            }
        } catch (const std::exception& failure) {
            made.failure = "\"" + entry.source.name + "\" does not fit: " + SentenceOf(failure);
        }
        return made;
    }

    std::unique_ptr<CFile> Open(const PackSource& source) {
        std::unique_lock lock(archives, std::defer_lock);
        if (source.entry) lock.lock();
        return OpenSource({source.path, source.name, source.archive, source.entry});
    }

    // Runs in the calling thread, in the order of the entries.
    void Take(const PlannedEntry& entry, const MadeItem& made, RunReport& report) {
        for (const std::string& note : made.notes) report.Note("\"" + entry.source.name + "\" " + note);
        if (made.failure.empty()) return report.AddDone(entry.source.path, entry.name);
        Fail(made.failure);
        report.AddFailed();
    }

    Tool& tool;
    const ToolArguments& arguments;
    std::string target;
    ArchiveContents contents;
    OutputPlace outputs;
    bool failed = false;
    std::mutex archives; // for all open archives, because only one thread may read them at a time
};

} // namespace

void Pack(Tool& tool, const ToolArguments& arguments) {
    if (arguments.remove && (arguments.append || arguments.replace))
        throw UsageError("--delete cannot be combined with --append or --replace.");
    const Interruption interruption;
    PackRun(tool, arguments).Run();
}

} // namespace keltavlo
