#include "tool/archives/ArchiveContents.h"

#include "archives/PAKDocument.h"
#include "archives/WADDocument.h"
#include "resources/streams/FileStream.h"
#include "tool/archives/PAKWriter.h"
#include "tool/archives/WADWriter.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace keltavlo {

namespace {

using SharedFile = std::shared_ptr<CFile>;

// Returns a function that reads the bytes of an entry, cut or filled with zeros to `size` as by the readers
// of archives.
auto ReadLater(const SharedFile& file, std::uint64_t offset, std::uint64_t stored, std::uint64_t size) {
    return [=] {
        if (offset + stored > file->GetLength() || size > file->GetLength())
            throw CFileException(CFileException::endOfFile, CFileException::noOsError, file->GetFilePath());
        std::vector<std::byte> bytes(size);
        file->Seek(static_cast<std::int64_t>(offset), CFile::From::begin);
        if (file->Read(bytes.data(), std::min(stored, size)) != std::min(stored, size))
            throw CFileException(CFileException::endOfFile, CFileException::noOsError, file->GetFilePath());
        return bytes;
    };
}

ArchiveContents ReadPAK(const SharedFile& file) {
    FileStream in(*file);
    ArchiveContents contents;
    for (const PAKRecord& record : PAKDocument::ReadDirectory(in))
        contents.items.push_back({std::string(record.GetPath()), LumpType{},
                                  ReadLater(file, record.offset, record.length, record.length)});
    return contents;
}

ArchiveContents ReadWAD(const SharedFile& file) {
    FileStream in(*file);
    const WADDirectory directory = WADDocument::ReadDirectory(in);
    const std::string_view identification(directory.header.identification,
                                          sizeof directory.header.identification);
    ArchiveContents contents{identification == wad2Identification ? ArchiveKind::wad2 : ArchiveKind::wad3,
                             {}};
    for (const WADRecord& record : directory.records) {
        if (record.compression != 0)
            throw CException("The archive contains compressed lumps, which cannot be rewritten.");
        contents.items.push_back({std::string(record.GetPath()), record.type,
                                  ReadLater(file, record.offset, record.diskSize, record.size)});
    }
    return contents;
}

// Returns the positions of the items by folded name. If several have the same name, the first counts, because
// readers find that one.
std::unordered_map<std::string, std::size_t> IndexOf(const ArchiveContents& contents) {
    std::unordered_map<std::string, std::size_t> index;
    for (std::size_t i = 0; i < contents.items.size(); ++i)
        index.emplace(FoldCase(contents.items[i].name), i);
    return index;
}

} // namespace

ArchiveContents ReadArchive(std::unique_ptr<CFile> file) {
    char start[sizeof PAKHeader::identification]{};
    file->Read(start, sizeof start);
    file->Seek(0, CFile::From::begin);
    const SharedFile shared = std::move(file);
    return std::ranges::equal(start, PAKHeader::expectedIdentification) ? ReadPAK(shared) : ReadWAD(shared);
}

void WriteArchive(OutputStream& out, const ArchiveContents& contents) {
    if (contents.kind == ArchiveKind::pak)
        WritePAK(out, contents.items);
    else
        WriteWAD(out, IdentificationOf(contents.kind), contents.items);
}

std::vector<std::string> AddItems(ArchiveContents& contents, std::vector<ArchiveItem> items,
                                  const ArchiveEdit& edit) {
    std::vector<std::string> complaints;
    const auto index = IndexOf(contents);
    for (ArchiveItem& item : items) {
        const auto place = index.find(FoldCase(item.name));
        const bool exists = place != index.end();
        if (exists && edit.replace)
            contents.items[place->second] = std::move(item);
        else if (!exists && edit.append)
            contents.items.push_back(std::move(item));
        else if (exists)
            complaints.push_back("\"" + item.name + "\" is in the archive; use --replace to replace it.");
        else
            complaints.push_back("\"" + item.name + "\" is not in the archive; use --append to add it.");
    }
    return complaints;
}

std::vector<std::string> TellSurplus(const ArchiveContents& contents) {
    if (contents.kind != ArchiveKind::pak || contents.items.size() <= maximumPAKRecords) return {};
    return {"The pack would contain " + std::to_string(contents.items.size()) + " files; at most " +
            std::to_string(maximumPAKRecords) + " are allowed."};
}

std::vector<std::string> RemoveItems(ArchiveContents& contents, std::span<const std::string> names) {
    std::vector<std::string> complaints;
    const auto index = IndexOf(contents);
    std::unordered_set<std::string> removed;
    for (const std::string& name : names)
        if (!index.contains(*removed.insert(FoldCase(name)).first))
            complaints.push_back("\"" + name + "\" is not in the archive.");
    std::erase_if(contents.items,
                  [&](const ArchiveItem& item) { return removed.contains(FoldCase(item.name)); });
    return complaints;
}

} // namespace keltavlo
