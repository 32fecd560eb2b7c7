#include "framework/core/CMemFile.h"
#include "framework/core/Path.h"
#include "image/picture/Texture.h"
#include "tool/BatchRun.h"
#include "tool/FolderMetadata.h"
#include "tool/OutputPlace.h"
#include "tool/PaletteLoader.h"
#include "tool/StandardStreams.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/ToolCommands.h"
#include "tool/pictures/PictureFormat.h"

namespace keltavlo {

namespace {

bool IsWritableFormat(std::string_view name) {
    const PictureFormat* format = FindPictureFormat(name);
    return format && format->codec.write;
}

std::string WithoutExtension(const std::string& name) {
    return name.substr(0, name.size() - ExtensionOf(name).size());
}

bool IsFolder(const std::string& path) {
    CFileStatus status;
    return CFile::GetStatus(path, status) && status.IsDirectory();
}

// Converts the inputs of the arguments.
class Conversion {
public:
    Conversion(Tool& reportingTool, const ToolArguments& toolArguments)
        : tool(reportingTool), arguments(toolArguments), outputs(reportingTool, toolArguments.force),
          stored(reportingTool) {}

    void Run() {
        const bool toFolder = GoesToFolder();
        CheckFormat(toFolder);
        palettes = LoadPalettes(arguments.palette);
        if (IsStandardStream(arguments.inputs.front()) || IsStandardStream(arguments.output))
            return ConvertStream();
        if (toFolder) outputs.KeepInside(FullPath(arguments.output));
        std::vector<BatchFile> files;
        for (const std::string& input : arguments.inputs) AddInput(input, toFolder, files);
        RunBatch(tool, arguments, {"convert", "converted"}, std::move(files), outputs,
                 [this](CFile& source, const BatchFile& file) { return Convert(source, file); });
        gathered.Write(outputs);
        outputs.Finish();
    }

private:
    bool GoesToFolder() {
        const std::string& output = arguments.output;
        if (IsStandardStream(output)) return false;
        if (output.empty()) return false;
        if (arguments.inputs.size() > 1 || IsSeparator(output.back()) || IsFolder(output)) return true;
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(TreePath(arguments.inputs.front()), status);
        return IsTree(status) || (!arguments.format.empty() && !FindPictureFormat(output));
    }

    void CheckFormat(bool toFolder) const {
        const bool isStream = IsStandardStream(arguments.output);
        if ((toFolder || isStream) && arguments.format.empty())
            throw UsageError(std::string("Converting to ") + (isStream ? "the standard output" : "a folder") +
                             " requires --to FORMAT.");
        if (!arguments.format.empty() && !IsWritableFormat("x" + arguments.format))
            throw UsageError("--to requires " + ListWritableFormats() + ".");
        if (!toFolder && !isStream && !IsWritableFormat(arguments.output))
            throw UsageError("The name of the output must end in " + ListWritableFormats(".") + ".");
    }

    void AddInput(const std::string& input, bool toFolder, std::vector<BatchFile>& files) {
        const std::string path = TreePath(input);
        EntryStatus status;
        tool.GetApplication().GetFileSystem().GetStatus(path, status);
        if (!status.exists) return FailToFind(tool, path);
        if (!IsTree(status)) {
            outputs.AddInput(path);
            if (!FindPictureFormat(path))
                return tool.Fail("\"" + ToDisplayPath(path) + "\" is not a picture.");
            return Add(FindFile(tool, path), toFolder, files);
        }
        const NestedArchives nested =
            arguments.enterArchives ? NestedArchives::entered : NestedArchives::asFiles;
        for (TreeFile& file : ListTree(tool, path, nested, outputs)) Add(std::move(file), true, files);
    }

    void Add(TreeFile source, bool toFolder, std::vector<BatchFile>& files) {
        if (IsMetadataName(source.name)) return;
        std::string target = toFolder ? FullPath(JoinPath(FullPath(arguments.output),
                                                          WithoutExtension(source.name) + arguments.format))
                                      : FullPath(arguments.output);
        if (!FindPictureFormat(source.name)) target.clear();
        TextureFields fields = stored.Find(source.path);
        files.push_back({std::move(source), std::move(target), std::move(fields)});
    }

    ConvertedFile Convert(CFile& source, const BatchFile& file) {
        if (arguments.metadata) gathered.Add(source, file.source.name, file.target, palettes);
        const ConversionOptions options{arguments.palette, Merge(arguments.set, file.fields),
                                        WithoutExtension(file.source.name), false};
        return ConvertPicture(source, file.source.name, file.target, palettes, options);
    }

    // Converts a single picture from or to a standard stream.
    void ConvertStream() {
        const std::string& input = arguments.inputs.front();
        if (arguments.inputs.size() > 1) throw UsageError("The standard streams take one picture at a time.");
        BatchFile file;
        std::unique_ptr<CFile> source;
        if (IsStandardStream(input)) {
            auto bytes = std::make_unique<CMemFile>();
            ReadStandardInput(*bytes);
            file.source.name = "picture" + GuessFormat(*bytes);
            source = std::move(bytes);
        } else {
            EntryStatus status;
            tool.GetApplication().GetFileSystem().GetStatus(TreePath(input), status);
            if (!status.exists) return FailToFind(tool, input);
            if (IsTree(status)) throw UsageError("The standard output takes a single picture.");
            file.source = FindFile(tool, TreePath(input));
            source = OpenSource(file.source);
        }
        Write(*source, file);
    }

    void Write(CFile& source, BatchFile& file) {
        const bool toOutput = IsStandardStream(arguments.output);
        const std::string path = FullPath(arguments.output);
        file.target = toOutput         ? "picture" + arguments.format
                      : GoesToFolder() ? JoinPath(path, WithoutExtension(file.source.name) + arguments.format)
                                       : path;
        const ConvertedFile converted = Convert(source, file);
        if (toOutput)
            WriteStandardOutput(tool.Output(), converted.bytes);
        else if (outputs.Write(file.target, converted.bytes))
            outputs.Finish();
        for (const std::string& note : converted.notes)
            if (!arguments.quiet) tool.Note("\"" + ToDisplayPath(file.target) + "\" " + note);
    }

    // Returns the extension of the format that can read the bytes. Throws CException if none can.
    std::string GuessFormat(CMemFile& bytes) const {
        // Formats with a signature come first; a Targa file may begin with anything.
        for (const char* extension : {".png", ".jpg", ".bmp", ".pcx", ".wal", ".mip", ".tga"}) {
            if (!FindPictureFormat(extension)) continue;
            try {
                bytes.Seek(0, CFile::From::begin);
                static_cast<void>(ReadPicture(bytes, extension, palettes, arguments.palette));
                bytes.Seek(0, CFile::From::begin);
                return extension;
            } catch (const CException&) { // try the next format
            }
        }
        throw CException("The standard input is not a picture of a known format.");
    }

    Tool& tool;
    const ToolArguments& arguments;
    OutputPlace outputs;
    PaletteSet palettes;
    StoredMetadata stored;
    GatheredMetadata gathered;
};

} // namespace

void Convert(Tool& tool, const ToolArguments& arguments) {
    Conversion(tool, arguments).Run();
}

} // namespace keltavlo
