#include "plotter/GraphViewDialog.h"

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "display/DisplayFormattingDialog.h"
#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "plotter/ColourIcon.h"
#include "plotter/GraphFile.h"
#include "plotter/PlotView.h"
#include "plotter/PlotterOptionsDialog.h"
#include "toolkit/FileDialogs.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/MessageBox.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TouchComboBox.h"
#include "toolkit/TouchHeight.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr QSize kOpeningSize(400, 520);
/// The graph's full width and height are to fit the smallest display.
constexpr int kMargin = 3;
constexpr int kGap = 3;
constexpr int kLeastRowHeight = 18;
constexpr const char* kUsualFileName = "graph";
/// Leaves the room of the row to the number.
constexpr int kCalWidth = 56;

/// The keys of the menu's commands. Arrow keys move while the graph has the focus, so that lists
/// and boxes keep theirs; the others work everywhere in the view.
struct CommandKeys {
  std::wstring_view caption;
  const char* keys;
  Qt::ShortcutContext context;
};
constexpr CommandKeys kCommandKeys[] = {
    {L"Zoom In", "+; =; Ctrl++; Ctrl+=", Qt::WindowShortcut},
    {L"Zoom Out", "-; Ctrl+-", Qt::WindowShortcut},
    {L"Reset", "Ctrl+0", Qt::WindowShortcut},
    {L"Move Left", "Left", Qt::WidgetShortcut},
    {L"Move Right", "Right", Qt::WidgetShortcut},
    {L"Move Up", "Up", Qt::WidgetShortcut},
    {L"Move Down", "Down", Qt::WidgetShortcut},
    {L"Undo", "Ctrl+Z", Qt::WindowShortcut},
};

/// A key that types a digit or a point. With Control or Alt it is a command's, though the keyboard
/// may tell the same text.
bool TypesOfANumber(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  const QString text = event.text();
  return !modifiers && text.size() == 1 && (text.front().isDigit() || text.front() == u'.');
}

/// The view's number settings as they are stored.
GraphModel NewModel(const SettingsStore& store, GraphData graph) {
  return {std::move(graph), static_cast<DisplayType>(Read(store, settings::kDisplayType)),
          Read(store, settings::kPrecision)};
}

}  // namespace

GraphViewDialog::GraphViewDialog(SettingsStore& settingsStore, GraphData shown, QWidget* parent)
    : Dialog(QStringLiteral("GraphView"), parent),
      store(settingsStore),
      fileName(QString::fromLatin1(kUsualFileName)),
      graph(NewModel(settingsStore, std::move(shown))),
      functionList(new TouchComboBox(this)),
      readOutList(new TouchComboBox(this)),
      view(new PlotView(graph, this)),
      xBox(new QLineEdit(this)),
      traceCheck(new QCheckBox(QStringLiteral("Trace"), this)) {
  BuildLists();
  Content()->addWidget(view, 1);
  BuildReading();
  BuildButtons();
  ShrinkRows();
  BuildMenus();
  Refresh();
  resize(kOpeningSize.boundedTo(screen()->availableSize()));
  view->setFocus();
  connect(view, &PlotView::PenPressed, this, &GraphViewDialog::PressPen);
  connect(view, &PlotView::PenMoved, this, &GraphViewDialog::MovePen);
  connect(view, &PlotView::PenReleased, this, &GraphViewDialog::ReleasePen);
  connect(view, &PlotView::PenLost, this, &GraphViewDialog::RemoveRubberBand);
  connect(view, &PlotView::WheelTurned, this, &GraphViewDialog::TurnWheel);
}

void GraphViewDialog::BuildLists() {
  QHBoxLayout* const row = NewRow();
  auto* const angle = new QLabel(
      graph.Angle() == AngleType::Degrees ? QStringLiteral("DEG") : QStringLiteral("RAD"), this);
  angle->setObjectName(QStringLiteral("Angle"));
  row->addWidget(angle);
  row->addWidget(functionList, 1);
  NewRow()->addWidget(readOutList);
  functionList->setObjectName(QStringLiteral("Functions"));
  functionList->setAccessibleName(QStringLiteral("Functions"));
  readOutList->setObjectName(QStringLiteral("Values"));
  readOutList->setAccessibleName(QStringLiteral("Values"));
  for (std::size_t i = 0; i < graph.Functions().size(); ++i) {
    functionList->addItem(FromWide(graph.FunctionLine(i)));
    functionList->setItemIcon(static_cast<int>(i), CurveIcon(i));
  }
  connect(functionList, &QComboBox::activated, this, &GraphViewDialog::SelectFunction);
  connect(readOutList, &QComboBox::activated, this, &GraphViewDialog::SelectReadOut);
  connect(functionList, &TouchComboBox::Opening, this, &GraphViewDialog::RemoveRubberBand);
  connect(readOutList, &TouchComboBox::Opening, this, &GraphViewDialog::RemoveRubberBand);
}

QHBoxLayout* GraphViewDialog::NewRow() {
  QHBoxLayout* const row = AddButtonRow();
  // As high as a finger wants, where there is room.
  row->addSpacerItem(new QSpacerItem(0, kTouchHeight, QSizePolicy::Fixed, QSizePolicy::Preferred));
  return row;
}

void GraphViewDialog::BuildReading() {
  QHBoxLayout* const row = NewRow();
  auto* const label = new QLabel(QStringLiteral("X ="), this);
  label->setBuddy(xBox);
  xBox->setObjectName(QStringLiteral("X ="));
  xBox->setAccessibleName(QStringLiteral("X ="));
  xBox->setMinimumHeight(kTouchHeight);
  LimitLength(xBox, kNumberLength);
  new KeyboardOnFocus(xBox);
  row->addWidget(label);
  row->addWidget(xBox, 1);
  QPushButton* const cal = AddButton(row, L"Cal", this, &GraphViewDialog::Cal);
  cal->setMaximumWidth(kCalWidth);
  SetDefault(cal);
  traceCheck->setObjectName(QStringLiteral("Trace"));
  traceCheck->setAccessibleName(QStringLiteral("Trace"));
  traceCheck->setMinimumHeight(kTouchHeight);
  row->addWidget(traceCheck);
  // However the text and the check came about: assistive technology sets them without a key.
  connect(xBox, &QLineEdit::textChanged, this,
          [this](const QString& text) { graph.xBox = text.toStdWString(); });
  connect(traceCheck, &QCheckBox::toggled, this, &GraphViewDialog::ToggleTrace);
  setTabOrder(cal, traceCheck);
}

void GraphViewDialog::BuildButtons() {
  QHBoxLayout* const row = NewRow();
  AddButton(row, L"Save Graph", this, &GraphViewDialog::Save);
  AddButton(row, L"Close", this, &GraphViewDialog::accept);
}

void GraphViewDialog::ShrinkRows() {
  Content()->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  Content()->setSpacing(kGap);
  for (QWidget* control : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (control->minimumHeight() != kTouchHeight && !qobject_cast<QPushButton*>(control)) continue;
    GrowToTouchHeight(control, kLeastRowHeight);
  }
}

GraphViewDialog::~GraphViewDialog() {
  // The window is hidden when this is no graph view any more, and the picture then says that the
  // drag has ended.
  disconnect(view, nullptr, this, nullptr);
}

void GraphViewDialog::BuildMenus() {
  auto* const menuBar = new QMenuBar(this);
  layout()->setMenuBar(menuBar);
  QMenu* const file = menuBar->addMenu(QStringLiteral("&File"));
  file->addAction(QStringLiteral("&Save Graph..."), QKeySequence::Save, this,
                  &GraphViewDialog::Save);
  file->addAction(QStringLiteral("&Config..."), this, &GraphViewDialog::Configure);
  file->addAction(QStringLiteral("&Close"), this, &GraphViewDialog::accept);
  QMenu* const menu = menuBar->addMenu(QStringLiteral("&Graph"));
  for (const GraphCommand& command : kGraphCommands) {
    QAction* const action =
        menu->addAction(FromWide(command.caption), this, [this, command] { Run(command.run); });
    for (const CommandKeys& keys : kCommandKeys) {
      if (keys.caption != command.caption) continue;
      action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(keys.keys)));
      action->setShortcutContext(keys.context);
    }
    // The widget whose focus the context speaks of.
    view->addAction(action);
  }
  menu->addSeparator();
  menu->addAction(QStringLiteral("Graph Options"), this, &GraphViewDialog::EditOptions);
}

void GraphViewDialog::Refresh() {
  const QSignalBlocker blocker(functionList);
  for (int i = 0; i < functionList->count(); ++i) {
    functionList->setItemText(i, FromWide(graph.FunctionLine(static_cast<std::size_t>(i))));
  }
  functionList->setCurrentIndex(graph.SelectedFunction());
  FillReadOuts();
  if (xBox->text().toStdWString() != graph.xBox) {
    xBox->setText(FromWide(graph.xBox));
    xBox->setCursorPosition(0);
  }
  const QSignalBlocker traceBlocker(traceCheck);
  traceCheck->setChecked(graph.IsTracing());
}

void GraphViewDialog::FillReadOuts() {
  const QSignalBlocker blocker(readOutList);
  readOutList->clear();
  for (std::size_t i = 0; i < graph.ReadOuts().size(); ++i) {
    readOutList->addItem(FromWide(graph.ReadOutLine(i)));
  }
  readOutList->setCurrentIndex(graph.SelectedReadOut());
}

void GraphViewDialog::Show(const std::wstring& sentence, QWidget* fault) {
  Refresh();
  if (!sentence.empty()) ShowErrorBox(this, sentence, [fault] { fault->setFocus(); });
}

void GraphViewDialog::Run(std::wstring (GraphModel::*command)()) {
  const std::wstring sentence = (graph.*command)();
  view->ShowGraph();
  Show(sentence, view);
}

void GraphViewDialog::PressPen(PixelPoint point) {
  const std::wstring sentence = graph.PenDown(point);
  view->ShowDrag();
  Show(sentence, view);
}

void GraphViewDialog::MovePen(PixelPoint point) {
  graph.PenMove(point);
  view->ShowDrag();
}

void GraphViewDialog::ReleasePen(PixelPoint point) {
  const std::wstring sentence = graph.PenUp(point);
  view->ShowGraph();
  Show(sentence, view);
}

void GraphViewDialog::TurnWheel(PixelPoint point, int steps) {
  const std::wstring sentence = graph.ZoomAt(point, steps);
  view->ShowGraph();
  Show(sentence, view);
}

void GraphViewDialog::Cal() {
  const std::wstring sentence = graph.Cal();
  view->ShowDrag();
  Show(sentence, xBox);
}

void GraphViewDialog::ToggleTrace() {
  graph.ToggleTrace();
  view->ShowDrag();
  Refresh();
}

void GraphViewDialog::SelectFunction(int index) {
  graph.SelectFunction(index);
  Refresh();
}

void GraphViewDialog::SelectReadOut(int index) {
  graph.SelectReadOut(index);
  Refresh();
}

void GraphViewDialog::RemoveRubberBand() {
  graph.RemoveRubberBand();
  view->ShowDrag();
}

void GraphViewDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && view->IsPenDown()) return view->DropPen();
  if (!xBox->hasFocus() && TypesOfANumber(*event)) {
    xBox->setFocus();
    xBox->selectAll();
    QCoreApplication::sendEvent(xBox, event);
    return;
  }
  Dialog::keyPressEvent(event);
}

void GraphViewDialog::EditOptions() {
  RemoveRubberBand();
  auto* const dialog = new PlotterOptionsDialog(graph.Ranges(), graph.Options(), this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    graph.ApplyOptions(dialog->ranges, dialog->options);
    view->ShowGraph();
    Refresh();
  });
  dialog->open();
}

void GraphViewDialog::Configure() {
  RemoveRubberBand();
  auto* const dialog = new DisplayFormattingDialog(graph.Display(), graph.Precision(), this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    Write(store, settings::kDisplayType, static_cast<int>(dialog->displayType));
    Write(store, settings::kPrecision, dialog->decimalPlaces);
    graph.SetDisplay(dialog->displayType, dialog->decimalPlaces);
    view->ShowGraph();
    Refresh();
  });
  dialog->open();
}

void GraphViewDialog::Save() {
  RemoveRubberBand();
  file_dialogs::SaveOffer offer{QStringLiteral("Save Graph"), fileName, {}};
  for (const GraphFormat& format : GraphFormats()) {
    offer.kinds.push_back({QString::fromLatin1(format.filter), QString::fromLatin1(format.suffix)});
  }
  file_dialogs::AskForFileToSave(this, offer, [this](const file_dialogs::Answer& path) {
    if (path) SaveAs(*path);
  });
}

void GraphViewDialog::SaveAs(const QString& path) {
  const QString reason = SaveGraph(graph, path);
  fileName = reason.isEmpty() ? QString::fromLatin1(kUsualFileName) : QFileInfo(path).fileName();
  if (reason.isEmpty()) return;
  file_dialogs::ShowFileError(this, path, reason, [this] { view->setFocus(); });
}

}  // namespace vexa
