#include "image/ui/PaletteChooser.h"

#include "framework/core/CWinApp.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "image/TavloDocument.h"
#include "res/ShellStrings.h"
#include "res/StringIds.h"
#include "resources/PaletteDocument.h"

namespace keltavlo {

namespace {

struct Entry {
    std::string title;
    const ColorList* colors;
};

// Lists in the order of the document types, then of opening.
std::vector<Entry> CollectLists() {
    std::vector<Entry> entries;
    for (const CDocument* document : CWinApp::Get().GetDocuments())
        if (const auto* table = dynamic_cast<const ColorTableDocument*>(document))
            entries.push_back({table->GetTitle(), &table->GetColors()});
        else if (const auto* picture = dynamic_cast<const TavloDocument*>(document);
                 picture && picture->GetTexture().palette)
            entries.push_back({picture->GetTitle(), picture->GetTexture().palette.get()});
    return entries;
}

std::string InParentheses(unsigned stringId) {
    return FormatString(IDS_PARENTHESES, LoadString(stringId).c_str());
}

constexpr int modeCount = 3; // of PalettePlanes::Mode, each at its own index
constexpr int colorTableIndex = 1;

} // namespace

PaletteChooser::PaletteChooser(QWidget* parent) : QComboBox(parent) {
    for (const std::string& text :
         {InParentheses(IDS_NONE), InParentheses(IDS_COLOR_TABLE), LoadString(IDS_RGBA)})
        addItem(ToQString(text), QVariant::fromValue<qulonglong>(static_cast<qulonglong>(count())));
    // Prevents a long title from widening the bar.
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
}

// Keeps the selected item at its new place. If it is gone, the bar keeps its colors.
void PaletteChooser::FillChooser() {
    const QVariant chosen = currentData();
    const std::vector<Entry> entries = CollectLists();
    const int wanted = modeCount + static_cast<int>(entries.size());
    while (count() > wanted) removeItem(count() - 1);
    while (count() < wanted) addItem({});
    for (int i = modeCount; i < wanted; ++i) {
        const Entry& entry = entries[static_cast<std::size_t>(i - modeCount)];
        setItemText(i, ToQString(entry.title));
        setItemData(i, QVariant::fromValue<qulonglong>(reinterpret_cast<std::uintptr_t>(entry.colors)));
    }
    const int place = findData(chosen);
    setCurrentIndex(place >= 0 ? place : colorTableIndex);
}

std::uintptr_t PaletteChooser::GetSelectedValue() const {
    return static_cast<std::uintptr_t>(currentData().toULongLong());
}

const ColorList* PaletteChooser::FindList(std::uintptr_t value) {
    for (const Entry& entry : CollectLists())
        if (reinterpret_cast<std::uintptr_t>(entry.colors) == value) return entry.colors;
    return nullptr;
}

void PaletteChooser::showPopup() {
    FillChooser();
    QComboBox::showPopup();
}

} // namespace keltavlo
