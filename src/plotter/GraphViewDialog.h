#pragma once

#include "plotter/GraphModel.h"
#include "toolkit/Dialog.h"

class QCheckBox;
class QHBoxLayout;
class QKeySequence;
class QLineEdit;
class QMenuBar;

namespace vexa {

class PlotView;
class SettingsStore;
class TouchComboBox;

/// Shows a graph: zoom, move, trace, save. GraphModel decides.
class GraphViewDialog : public Dialog {
  Q_OBJECT

 public:
  /// Shows `shown`, functions or data points or both. Reads how numbers are written from
  /// `settingsStore`, which must outlive the dialog.
  GraphViewDialog(SettingsStore& settingsStore, GraphData shown, QWidget* parent);
  ~GraphViewDialog() override;

  const GraphModel& Graph() const { return graph; }

 protected:
  /// Escape drops a drag first. A number that is typed where nothing takes it is one for X.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildMenus();
  void BuildLists();
  void BuildReading();
  void BuildButtons();
  /// A row beside the graph.
  QHBoxLayout* NewRow();
  /// Lets the rows beside the graph shrink, so that it has its full size on the smallest display.
  void ShrinkRows();
  /// Shows what the model says.
  void Refresh();
  void FillReadOuts();

  /// Runs a command of the model, shows the outcome, and its sentence where there is one; then the
  /// focus is `fault`'s.
  void Run(std::wstring (GraphModel::*command)());
  void Show(const std::wstring& sentence, QWidget* fault);

  void PressPen(PixelPoint point);
  void MovePen(PixelPoint point);
  void ReleasePen(PixelPoint point);
  void TurnWheel(PixelPoint point, int steps);
  void Cal();
  void ToggleTrace();
  void SelectFunction(int index);
  void SelectReadOut(int index);
  void RemoveRubberBand();
  void EditOptions();
  void Configure();
  void Save();
  void SaveAs(const QString& path);

  SettingsStore& store;
  /// The name that the file dialog proposes: one that was tried and failed, else the usual one.
  QString fileName;
  GraphModel graph;
  TouchComboBox* functionList;
  TouchComboBox* readOutList;
  PlotView* view;
  QLineEdit* xBox;
  QCheckBox* traceCheck;
};

}  // namespace vexa
