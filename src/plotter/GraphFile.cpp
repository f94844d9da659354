#include "plotter/GraphFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>

#include "plotter/DrawGraph.h"
#include "plotter/GraphBitmap.h"
#include "plotter/GraphImage.h"
#include "plotter/PlotArea.h"
#include "plotter/SvgCanvas.h"

namespace vexa {
namespace {

using namespace plot_area;

/// Pixels of a PNG picture for each pixel of the view.
constexpr qreal kPngScale = 4;

QByteArray WriteBmp(const GraphModel& graph) {
  const std::vector<std::uint8_t> bytes = BitmapFile(DrawPicture(graph));
  return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

QByteArray WritePng(const GraphModel& graph) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  DrawGraphImage(graph, kPngScale, QGuiApplication::font(), Qt::white).save(&buffer, "PNG");
  return buffer.data();
}

QByteArray WriteSvg(const GraphModel& graph) {
  SvgCanvas canvas(
      {kPictureLeft, kPictureTop, kPictureLeft + kPictureWidth, kPictureTop + kPictureHeight});
  DrawGraph(graph, canvas);
  return QByteArray::fromStdString(canvas.Document());
}

constexpr GraphFormat kFormats[] = {
    {"BMP(*.bmp)", "bmp", WriteBmp},
    {"PNG(*.png)", "png", WritePng},
    {"SVG(*.svg)", "svg", WriteSvg},
};

const GraphFormat& FormatOf(const QString& path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  for (const GraphFormat& format : kFormats) {
    if (suffix == QLatin1String(format.suffix)) return format;
  }
  return kFormats[0];
}

}  // namespace

std::span<const GraphFormat> GraphFormats() {
  return kFormats;
}

QString SaveGraph(const GraphModel& graph, const QString& path) {
  const QByteArray bytes = FormatOf(path).write(graph);
  if (bytes.isEmpty()) return QStringLiteral("There is no room for the picture");
  QSaveFile file(path);
  // A write that failed fails the commit, too; a buffer's last one would not.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return file.errorString();
  file.write(bytes);
  return file.commit() ? QString() : file.errorString();
}

}  // namespace vexa
