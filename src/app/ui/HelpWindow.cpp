#include "app/ui/HelpWindow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace keltavlo {

namespace {

// The recommended order of reading. Each page ends with links to its neighbors.
constexpr const char* pages[] = {"index.html",   "open.html",     "seam.html",     "painting.html",
                                 "save.html",    "flags.html",    "models.html",   "tool.html",
                                 "formats.html", "archives.html", "palettes.html", "keys.html",
                                 "disabled.html"};

QUrl UrlOf(const QString& name) {
    return QUrl(QStringLiteral("qrc:/help/") + name);
}

} // namespace

HelpWindow::HelpWindow() : topics(new QListWidget), browser(new QTextBrowser) {
    setWindowTitle(QStringLiteral("KelTavlo Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    browser->setOpenLinks(true);
    auto* back = new QPushButton(style()->standardIcon(QStyle::SP_ArrowBack), QStringLiteral("&Back"));
    auto* forward =
        new QPushButton(style()->standardIcon(QStyle::SP_ArrowForward), QStringLiteral("&Forward"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addWidget(forward);
    buttons->addStretch();
    auto* panes = new QSplitter;
    panes->addWidget(topics);
    panes->addWidget(browser);
    panes->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(panes, 1);
    connect(back, &QPushButton::clicked, browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, browser, &QTextBrowser::forward);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    FillTopics();
    connect(browser, &QTextBrowser::sourceChanged, [this](const QUrl& page) { FollowPage(page); });
    connect(topics, &QListWidget::currentRowChanged,
            [this](int row) { browser->setSource(UrlOf(QString::fromLatin1(pages[row]))); });
    const int character = fontMetrics().averageCharWidth();
    const QSize wanted(160 * character, 46 * fontMetrics().height());
    constexpr double shareOfScreen = 0.9;
    resize(wanted.boundedTo(screen()->availableSize() * shareOfScreen));
    panes->setSizes({topics->sizeHintForColumn(0) + 3 * character, width()});
}

// Each page contains its title.
void HelpWindow::FillTopics() {
    for (const char* page : pages) {
        browser->setSource(UrlOf(QString::fromLatin1(page)));
        topics->addItem(browser->documentTitle());
    }
    browser->setSource(UrlOf(QString::fromLatin1(pages[0])));
    browser->clearHistory();
}

// Called when a link or a button leads to another page.
void HelpWindow::FollowPage(const QUrl& page) {
    for (int row = 0; row < topics->count(); ++row)
        if (page == UrlOf(QString::fromLatin1(pages[row]))) {
            const QSignalBlocker quiet(topics);
            topics->setCurrentRow(row);
        }
}

void HelpWindow::ShowPage(const QString& name) {
    browser->setSource(UrlOf(name));
    show();
    raise();
    activateWindow();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace keltavlo
