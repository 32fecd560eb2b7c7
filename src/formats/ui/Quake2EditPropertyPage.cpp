#include "formats/ui/Quake2EditPropertyPage.h"

#include "framework/ui/DialogLayout.h"
#include "image/SurfaceFlags.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "res/ControlIds.h"

#include <QVBoxLayout>

namespace keltavlo {

namespace {

constexpr std::size_t longestName = 31;
constexpr CDataExchange::Range values{-32767, 32768};
constexpr int bitsPerColumn = 8;

// Returns the document of a page of the inner sheet.
TavloDocument& GetInnerPageDocument(const CPropertyPage& page) {
    return dynamic_cast<const EditPropertyPage&>(*page.GetSheet()->parentWidget()).GetDocument();
}

} // namespace

Quake2GeneralEditPropertyPage::Quake2GeneralEditPropertyPage() : CPropertyPage(QStringLiteral("General")) {
    QGridLayout& grid = AddPageGrid(*this);
    AddEdit(*this, grid, {0, 0, 3}, "&Name:", IDC_NAME);
    AddSpinEdit(*this, grid, {1, 0, 2}, "&Value:", IDC_VALUE, IDC_VALUE_SPIN);
    AddHeading(grid, {2, 0, 3}, "Next Animation Frame");
    AddEdit(*this, grid, {3, 0, 3}, "&Name:", IDC_NEXT_FRAME_NAME);
    grid.setColumnStretch(2, 1);
}

void Quake2GeneralEditPropertyPage::DoDataExchange(CDataExchange& exchange) {
    exchange.Text(IDC_NAME, name, longestName);
    exchange.Text(IDC_NEXT_FRAME_NAME, nextFrameName);
    exchange.Number(IDC_VALUE, value, values);
}

void Quake2GeneralEditPropertyPage::OnInitDialog() {
    const TavloDocument& document = GetInnerPageDocument(*this);
    name = document.GetQuake2Names().name;
    nextFrameName = document.GetQuake2Names().nextFrameName;
    value = static_cast<std::int32_t>(document.GetValue());
    CPropertyPage::OnInitDialog();
}

bool Quake2GeneralEditPropertyPage::OnApply() {
    if (!UpdateData(true)) return false;
    TavloDocument& document = GetInnerPageDocument(*this);
    ChangeQuake2Names(document, {name, nextFrameName});
    ChangeValue(document, static_cast<std::uint32_t>(value));
    return CPropertyPage::OnApply();
}

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

Quake2EditPropertyPage::Quake2EditPropertyPage() : EditPropertyPage(QStringLiteral("Quake II")) {
    innerSheet.AddPage(generalPage);
    innerSheet.AddPage(surfacePage);
    innerSheet.AddPage(contentsPage);
    auto* frame = new QVBoxLayout(this);
    frame->addWidget(&innerSheet);
}

void Quake2EditPropertyPage::OnInitDialog() {
    innerSheet.Create(*this);
}

bool Quake2EditPropertyPage::OnApply() {
    return innerSheet.Apply() && EditPropertyPage::OnApply();
}

} // namespace keltavlo
