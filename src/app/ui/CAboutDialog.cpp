#include "app/ui/CAboutDialog.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "framework/ui/CStaticLink.h"
#include "preview3d/ui/RenderingContext.h"
#include "res/ControlIds.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>

namespace keltavlo {

namespace {

// The width of the text; longer lines wrap.
constexpr int charactersOfInformation = 48;
constexpr int linesOfInformation = 8;

QString VersionLine() {
    return QStringLiteral("Version ") + QCoreApplication::applicationVersion();
}

QString Information(const std::string& settingsPath) {
    const std::string openGL = DescribeOpenGL();
    return QStringLiteral("KelTavlo %1\nQt %2\nOpenGL: %3\nSettings: %4")
        .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()),
             openGL.empty() ? QStringLiteral("not available") : ToQString(openGL),
             ToQString(ToDisplayPath(settingsPath)));
}

QLabel* MakePicture() {
    auto* picture = new QLabel;
    picture->setPixmap(QPixmap(QStringLiteral(":/icons/keltavlo-128.png")));
    picture->setAlignment(Qt::AlignTop);
    return picture;
}

// Makes a text that the user can select and copy.
QPlainTextEdit* MakeInformation(const QString& text) {
    auto* area = new QPlainTextEdit(text);
    area->setReadOnly(true);
    area->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    area->setTabChangesFocus(true);
    area->setMinimumWidth(area->fontMetrics().horizontalAdvance(u'0') * charactersOfInformation);
    area->setFixedHeight(area->fontMetrics().lineSpacing() * linesOfInformation);
    return area;
}

} // namespace

CAboutDialog::CAboutDialog(QWidget* owner, const std::string& settingsPath) : CDialog(owner) {
    setWindowTitle(QStringLiteral("About KelTavlo"));
    auto* website = new CStaticLink(QStringLiteral("www.example.org/keltavlo"));
    auto* email = new CStaticLink(QStringLiteral("keltavlo@example.org"));
    website->AddPrefix("http://");
    email->AddPrefix("mailto:");
    auto* information = MakeInformation(Information(settingsPath));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    AddControl(IDC_WEBSITE, *website);
    AddControl(IDC_EMAIL, *email);
    AddControl(IDC_INFORMATION, *information);

    auto* grid = new QGridLayout(this);
    grid->addWidget(MakePicture(), 0, 0, 7, 1);
    grid->addWidget(new QLabel(QStringLiteral("KelTavlo")), 0, 1, 1, 2);
    grid->addWidget(new QLabel(VersionLine()), 0, 3, Qt::AlignRight);
    grid->addWidget(new QLabel(QStringLiteral("A workshop for the textures of games.")), 1, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Free software under the MIT License.")), 2, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Information:")), 3, 1, 1, 3);
    grid->addWidget(information, 4, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("website:")), 5, 1);
    grid->addWidget(website, 5, 2, 1, 2, Qt::AlignLeft);
    grid->addWidget(new QLabel(QStringLiteral("email:")), 6, 1);
    grid->addWidget(email, 6, 2, 1, 2, Qt::AlignLeft);
    grid->addWidget(buttons, 7, 0, 1, 4);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(4, 1);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

} // namespace keltavlo
