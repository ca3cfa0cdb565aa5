/// Shows every control of the kit in every state on one window, to be looked at. `zdt_kit_gallery SKIN
/// [message|progress|menu]` also opens one of the things that lie over a window.
#include "kit/controlSearch.h"
#include "kit/emptyState.h"
#include "kit/flowView.h"
#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/listView.h"
#include "kit/menuUI.h"
#include "kit/messageBoxDlg.h"
#include "kit/progressDialog.h"
#include "kit/searchField.h"
#include "kit/segmentedControl.h"
#include "kit/switchControl.h"
#include "kit/tokens.h"
#include "kit/window.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTimer>

#include <chrono>
#include <thread>

namespace {

using namespace zdt;

class Rows : public ZListViewDataSource {
public:
    [[nodiscard]] int count() const override { return 1000; }
    [[nodiscard]] int rowHeight(int index) const override { return index % 12 == 0 ? 32 : 40; }
    [[nodiscard]] int kindOf(int index) const override { return index % 12 == 0; }
    [[nodiscard]] bool isSelectable(int index) const override { return index % 12 != 0; }
    [[nodiscard]] QString accessibleName(int index) const override { return QString("color_%1").arg(index); }

    QWidget* makeCell(int kind, QWidget* parent) override {
        auto* cell = new QWidget(parent);
        auto* row = new QHBoxLayout(cell);
        row->setContentsMargins(16, 0, 8, 0);
        auto* name = new ZElidedLabel;
        name->setObjectName("name");
        name->setProperty("type", kind == 1 ? "label" : "mono");
        row->addWidget(name, 1);
        if (kind == 0)
            row->addWidget(new ZBadge("9.1", "generation9"));
        return cell;
    }

    void fillCell(QWidget* cell, int index) override {
        FindControl<ZElidedLabel>(cell, "name").setText(isSelectable(index) ? accessibleName(index) : "Group");
    }
};

class Card : public QWidget {
public:
    using QWidget::QWidget;
    CellState state;
    int index = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(token::card);
        painter.setPen(state.current || state.hovered ? token::accent : token::hairline);
        painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), token::radiusCard, token::radiusCard);
        painter.setPen(token::text);
        painter.setFont(textFont(token::textName, QFont::DemiBold));
        painter.drawText(rect(), Qt::AlignCenter, QString("Theme %1").arg(index));
    }
};

class Cards : public ZFlowViewDataSource {
public:
    [[nodiscard]] int count() const override { return 1000; }
    [[nodiscard]] QSize cellSize() const override { return {104, 72}; }
    [[nodiscard]] int gap() const override { return 8; }
    [[nodiscard]] QString accessibleName(int index) const override { return QString("Theme %1").arg(index); }
    QWidget* makeCell(int, QWidget* parent) override { return new Card(parent); }
    void fillCell(QWidget* cell, int index) override {
        static_cast<Card*>(cell)->index = index;
        cell->update();
    }
    void showState(QWidget* cell, int, const CellState& state) override {
        static_cast<Card*>(cell)->state = state;
        cell->update();
    }
};

QPushButton* button(const QString& text, const QString& kind, std::optional<Icon> which = {}) {
    auto* made = new QPushButton(text);
    made->setObjectName("button" + kind + text);
    made->setProperty("kind", kind);
    made->setCheckable(kind == "toggle" || kind == "chip");
    if (which)
        setButtonIcon(made, *which);
    return made;
}

template <typename Make>
void rowOf(QGridLayout& grid, const QString& label, Make make) {
    const int row = grid.rowCount();
    auto* head = new QLabel(label);
    head->setProperty("type", "hint");
    grid.addWidget(head, row, 0);
    for (int column = 1; column <= 2; ++column) {
        QWidget* widget = make();
        widget->setEnabled(column == 1);
        grid.addWidget(widget, row, column, Qt::AlignLeft);
    }
}

template <typename Button>
Button* checked(Button* made) {
    made->setCheckable(true);
    made->setChecked(true);
    return made;
}

void addButtons(QGridLayout& grid) {
    rowOf(grid, "Filled", [] { return button("Export", "filled", Icon::Output); });
    rowOf(grid, "Button", [] { return button("Cancel", {}); });
    rowOf(grid, "With icon", [] { return button("Import", {}, Icon::FileDownload); });
    rowOf(grid, "Quiet", [] { return button("Problems", "quiet", Icon::ErrorOutline); });
    rowOf(grid, "Danger", [] { return button("Delete", "danger", Icon::DeleteOutline); });
    rowOf(grid, "Icon", [] { return button({}, "quiet", Icon::Undo); });
    rowOf(grid, "Toggle", [] { return checked(button("Outlines", "toggle", Icon::SelectAll)); });
    rowOf(grid, "Chip", [] { return button("Pictures  7", "chip"); });
    rowOf(grid, "Chip, chosen", [] { return checked(button("All  9", "chip")); });
}

void addChoices(QGridLayout& grid) {
    rowOf(grid, "Radio", [] { return checked(new QRadioButton("Big")); });
    rowOf(grid, "Radio, off", [] {
        auto* radio = new QRadioButton("Small");
        radio->setAutoExclusive(false);
        return radio;
    });
    rowOf(grid, "Check box", [] { return checked(new QCheckBox("Own picture")); });
    rowOf(grid, "Check box, off", [] { return new QCheckBox("Own picture"); });
    rowOf(grid, "Switch", [] { return checked(new ZSwitch); });
    rowOf(grid, "Switch, off", [] { return new ZSwitch; });
    rowOf(grid, "Segmented", [] {
        auto* made = new ZSegmented;
        made->setLabels({"中文", "EN"});
        return made;
    });
}

QWidget* field(const QString& label, const QString& text, const QString& state, const QString& hint) {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    auto* name = new QLabel(label);
    name->setProperty("type", "label");
    auto* edit = new QLineEdit(text);
    edit->setObjectName("field" + state);
    edit->setPlaceholderText("Name");
    edit->setProperty("state", state);
    edit->setEnabled(state != "off");
    auto* below = new QLabel(hint);
    below->setProperty("type", "hint");
    below->setProperty("state", state);
    column->addWidget(name);
    column->addWidget(edit);
    column->addWidget(below);
    return box;
}

QWidget* middleColumn() {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setSpacing(10);
    column->addWidget(field("English name", "Aurora Nights", {}, "Shown on phones set to English"));
    column->addWidget(field("Chinese name", "极光之夜", "ok", "This name is free"));
    column->addWidget(field("Version", "1a", "error", "Digits only, from 1 to 999"));
    column->addWidget(field("Author", "Aurora", "warn", "Another theme is called so"));
    column->addWidget(field("Switched off", "Aurora", "off", "Not for this theme"));
    auto* search = new ZSearchField;
    search->setPlaceholderText("Search by name");
    column->addWidget(search);
    auto* found = new ZSearchField;
    found->setText("fab_bg");
    column->addWidget(found);
    auto* combo = new QComboBox;
    combo->setObjectName("combo");
    combo->addItems({"Last change", "Name", "Size"});
    column->addWidget(combo);
    auto* spin = new QSpinBox;
    spin->setSuffix(" %");
    spin->setValue(50);
    column->addWidget(spin);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    column->addWidget(slider);
    auto* progress = new QProgressBar;
    progress->setTextVisible(false);
    progress->setValue(62);
    column->addWidget(progress);
    column->addStretch();
    polishControls(box);
    return box;
}

QWidget* rightColumn(ZListViewDataSource& rows, ZFlowViewDataSource& cards) {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    auto* tabs = new QTabBar;
    for (const char* name : {"Colours", "Pictures", "All keys"})
        tabs->addTab(name);
    column->addWidget(tabs);
    auto* list = new ZListView;
    list->setObjectName("list");
    list->setSource(&rows);
    list->setCurrent(2);
    column->addWidget(list, 3);
    auto* flow = new ZFlowView;
    flow->setObjectName("flow");
    flow->setSource(&cards);
    flow->setCurrent(1);
    column->addWidget(flow, 2);
    auto* badges = new QHBoxLayout;
    for (const char* kind : {"generation9", "generation8", "generation5", "plain", "absent", "ok", "danger"})
        badges->addWidget(new ZBadge("9.1", kind));
    badges->addWidget(new ZBadge("2", "count"));
    badges->addWidget(new ZBadge("9", "alarm"));
    badges->addStretch();
    column->addLayout(badges);
    column->addWidget(
        new ZElidedLabel("A long name of a theme that ends with an ellipsis and is told in full by its tip"));
    auto* empty = new ZEmptyState;
    empty->setIcon("search");
    empty->setTexts("Nothing called fog", "Try another word", "Clear search");
    column->addWidget(empty);
    return box;
}

QString words(const QString& key) {
    return key;
}

void overlay(ZWindow& window, const QString& which) {
    if (which == "message") {
        ZMessageBoxDlg::Message message;
        message.kind = ZMessageBoxDlg::Kind::Warning;
        message.titleKey = "Delete this theme?";
        message.textKey = "All pictures and colours of %1 are removed from this computer. This cannot be undone.";
        message.arguments = QStringList{"Aurora Nights"};
        message.acceptKey = "Delete";
        message.rejectKey = "Cancel";
        message.rejectByDefault = true;
        (void)ZMessageBoxDlg::ask(message, words, &window);
    } else if (which == "progress") {
        ZProgressDialog dialog("Sending to the phone", &window);
        dialog.offerCancel("Stop");
        (void)dialog.run([&](const Progress& progress) {
            for (int step = 0; step < 400 && !dialog.cancelRequested(); ++step) {
                progress(step / 400.0);
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
            return true;
        });
    } else if (which == "menu") {
        auto* menu = new ZMenuUI(&window);
        menu->addRow(Icon::FolderOpen, "Open");
        menu->addRow(Icon::DriveFileRenameOutline, "Rename")->setShortcut(Qt::Key_F2);
        menu->addRow(Icon::ContentCopy, "Duplicate")->setEnabled(false);
        menu->addSeparator();
        menu->addRow(Icon::DeleteOutline, "Delete", true)->setShortcut(Qt::Key_Delete);
        menu->setActiveAction(menu->actions().at(1));
        menu->popup(window.mapToGlobal(QPoint(500, 300)));
    }
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (!applyKitStyle(application, {arguments.value(1)}))
        qWarning("no style sheet in %s", qPrintable(arguments.value(1)));
    Rows rows;
    Cards cards;
    ZWindow window;
    window.setWindowTitle("gallery");
    window.setMinimumSize(1024, 740);
    window.resize(1280, 775);
    auto* content = new QWidget;
    auto* columns = new QHBoxLayout(content);
    auto* grid = new QGridLayout;
    addButtons(*grid);
    addChoices(*grid);
    grid->setRowStretch(grid->rowCount(), 1);
    columns->addLayout(grid, 3);
    columns->addWidget(middleColumn(), 3);
    columns->addWidget(rightColumn(rows, cards), 4);
    window.setFrame(content);
    window.show();
    QTimer::singleShot(300, &window, [&] { overlay(window, arguments.value(2)); });
    return QApplication::exec();
}
