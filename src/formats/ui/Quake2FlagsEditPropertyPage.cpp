#include "formats/ui/Quake2FlagsEditPropertyPage.h"

#include "formats/ui/Quake2EditPropertyPage.h"
#include "framework/ui/CDataExchange.h"
#include "framework/ui/DialogLayout.h"
#include "image/SurfaceFlags.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "res/ControlIds.h"

namespace keltavlo {

namespace {

constexpr int bitsPerColumn = 8;

} // namespace

Quake2FlagsEditPropertyPage::Quake2FlagsEditPropertyPage(const QString& title,
                                                         std::span<const std::string_view> labels)
    : CPropertyPage(title), bitCount(static_cast<std::uint32_t>(labels.size())),
      checkStates(std::make_unique<bool[]>(bitCount)) {
    QGridLayout& grid = AddPageGrid(*this);
    for (int bit = 0; bit < static_cast<int>(bitCount); ++bit)
        AddCheckBox(*this, grid, {bit % bitsPerColumn, bit / bitsPerColumn},
                    std::string(labels[static_cast<std::size_t>(bit)]).c_str(),
                    IDC_FIRST_FLAG + static_cast<unsigned>(bit));
}

void Quake2FlagsEditPropertyPage::DoDataExchange(CDataExchange& exchange) {
    for (std::uint32_t bit = 0; bit < bitCount; ++bit) {
        const std::uint32_t mask = std::uint32_t{1} << bit;
        if (!exchange.IsSaving()) checkStates[bit] = (flags & mask) != 0;
        exchange.Check(IDC_FIRST_FLAG + bit, checkStates[bit]);
        flags = checkStates[bit] ? flags | mask : flags & ~mask;
    }
}

void Quake2FlagsEditPropertyPage::OnInitDialog() {
    flags = GetStored(GetInnerPageDocument(*this));
    CPropertyPage::OnInitDialog();
}

bool Quake2FlagsEditPropertyPage::OnApply() {
    if (!UpdateData(true)) return false;
    Store(GetInnerPageDocument(*this), flags);
    return CPropertyPage::OnApply();
}

Quake2SurfaceEditPropertyPage::Quake2SurfaceEditPropertyPage()
    : Quake2FlagsEditPropertyPage(QStringLiteral("Surface"), surfaceFlagLabels) {}

std::uint32_t Quake2SurfaceEditPropertyPage::GetStored(const TavloDocument& document) const {
    return document.GetSurfaceFlags();
}

void Quake2SurfaceEditPropertyPage::Store(TavloDocument& document, std::uint32_t newFlags) const {
    ChangeSurfaceFlags(document, newFlags);
}

Quake2ContentsEditPropertyPage::Quake2ContentsEditPropertyPage()
    : Quake2FlagsEditPropertyPage(QStringLiteral("Contents"), contentsFlagLabels) {}

std::uint32_t Quake2ContentsEditPropertyPage::GetStored(const TavloDocument& document) const {
    return document.GetContents();
}

void Quake2ContentsEditPropertyPage::Store(TavloDocument& document, std::uint32_t newFlags) const {
    ChangeContents(document, newFlags);
}

} // namespace keltavlo
