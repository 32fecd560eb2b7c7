#include "framework/core/EmbeddedFiles.h"

#include "framework/core/Text.h"

#include <algorithm>

namespace keltavlo {

namespace {

std::vector<EmbeddedFile>& Table() {
    static std::vector<EmbeddedFile> table;
    return table;
}

bool ComesBefore(const EmbeddedFile& a, const EmbeddedFile& b) {
    return a.id < b.id;
}

} // namespace

void AddEmbeddedFiles(std::span<const EmbeddedFile> rows) {
    for (const EmbeddedFile& row : rows)
        if (!FindEmbeddedFile(row.id, row.type))
            Table().insert(std::upper_bound(Table().begin(), Table().end(), row, ComesBefore), row);
}

std::vector<unsigned> EmbeddedFileIds(std::string_view type) {
    std::vector<unsigned> ids;
    for (const EmbeddedFile& row : Table())
        if (EqualNoCase(row.type, type)) ids.push_back(row.id);
    return ids;
}

const EmbeddedFile* FindEmbeddedFile(unsigned id, std::string_view type) {
    for (const EmbeddedFile& row : Table())
        if (row.id == id && EqualNoCase(row.type, type)) return &row;
    return nullptr;
}

} // namespace keltavlo
