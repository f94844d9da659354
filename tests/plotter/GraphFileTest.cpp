// Saved graphs as other programs read them, and what an interrupted save leaves.

#include "plotter/GraphFile.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include "plotter/GoldenGraphs.h"
#include "plotter/GraphBitmap.h"
#include "plotter/GraphImage.h"
#include "plotter/Palette16.h"
#include "support/FullDisk.h"

namespace vexa {

class GraphFileTest : public QObject {
  Q_OBJECT

 private slots:
  void TheToolkitReadsEveryPixel();
  void PillowReadsEveryPixel();
  void GdkPixbufReadsEveryPixel();
  void PngIsTheSamePictureInHighResolution();
  void SvgIsWellFormed();
  void AnySuffixElseIsABitmap();
  void AFileIsReplacedWhole();
  void AFailedSaveLeavesTheOldFile();
  void AFullDiskLeavesTheOldFile_data();
  void AFullDiskLeavesTheOldFile();

 private:
  static QRgb Pixel(const RasterCanvas& picture, int column, int row) {
    const Colour& colour = kPalette16[picture.EntryAt(column, row)];
    return qRgb(colour.red, colour.green, colour.blue);
  }
  static void CheckPixels(const QImage& read, const RasterCanvas& picture);
  static GraphModel Example() { return test::GoldenGraphs().at(2).make(); }
};

void GraphFileTest::CheckPixels(const QImage& read, const RasterCanvas& picture) {
  QCOMPARE(read.size(), QSize(234, 176));
  for (int row = 0; row < picture.Height(); ++row) {
    for (int column = 0; column < picture.Width(); ++column) {
      QCOMPARE(read.pixel(column, row), Pixel(picture, column, row));
    }
  }
}

void GraphFileTest::TheToolkitReadsEveryPixel() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.bmp"));
  for (const test::GoldenGraph& golden : test::GoldenGraphs()) {
    const GraphModel graph = golden.make();
    QCOMPARE(SaveGraph(graph, path), QString());
    QCOMPARE(QFile(path).size(), 21238);
    CheckPixels(QImage(path), DrawPicture(graph));
  }
}

void GraphFileTest::PillowReadsEveryPixel() {
  // Both the distribution's interpreter and one of the user's own may have the library.
  QString python;
  for (const char* candidate : {"/usr/bin/python3", "python3"}) {
    if (QProcess::execute(QString::fromLatin1(candidate), {"-c", "import PIL.Image"}) == 0) {
      python = QString::fromLatin1(candidate);
      break;
    }
  }
  if (python.isEmpty()) QSKIP("Pillow (Debian's python3-pil) is not installed");
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.bmp"));
  const GraphModel graph = Example();
  QCOMPARE(SaveGraph(graph, path), QString());
  QProcess reader;
  reader.start(python, {"-c",
                        "import sys, PIL.Image\n"
                        "image = PIL.Image.open(sys.argv[1])\n"
                        "assert image.size == (234, 176), image.size\n"
                        "sys.stdout.buffer.write(image.convert('RGB').tobytes())",
                        path});
  QVERIFY(reader.waitForFinished());
  const QByteArray pixels = reader.readAllStandardOutput();
  QVERIFY2(reader.exitCode() == 0, reader.readAllStandardError());
  QCOMPARE(pixels.size(), 234 * 176 * 3);
  CheckPixels(QImage(reinterpret_cast<const uchar*>(pixels.constData()), 234, 176, 234 * 3,
                     QImage::Format_RGB888),
              DrawPicture(graph));
}

void GraphFileTest::GdkPixbufReadsEveryPixel() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.bmp"));
  const QString copy = folder.filePath(QStringLiteral("copy.png"));
  const GraphModel graph = Example();
  QCOMPARE(SaveGraph(graph, path), QString());
  QProcess reader;
  // Asked for its own size, the picture is not scaled.
  reader.start(QStringLiteral("gdk-pixbuf-thumbnailer"), {"-s", "234", path, copy});
  if (!reader.waitForStarted()) {
    QSKIP("gdk-pixbuf-thumbnailer (Debian's libgdk-pixbuf2.0-bin) is not installed");
  }
  QVERIFY(reader.waitForFinished());
  QVERIFY2(reader.exitCode() == 0, reader.readAllStandardError());
  CheckPixels(QImage(copy).convertToFormat(QImage::Format_RGB32), DrawPicture(graph));
}

void GraphFileTest::PngIsTheSamePictureInHighResolution() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.PNG"));
  const GraphModel graph = Example();
  QCOMPARE(SaveGraph(graph, path), QString());
  const QImage picture(path, "PNG");
  QCOMPARE(picture.size(), QSize(936, 704));
  // Frame, axis and background are where the exact picture has them.
  const RasterCanvas exact = DrawPicture(graph);
  for (const QPoint place : {QPoint(2, 50), QPoint(231, 120), QPoint(220, 173), QPoint(220, 10)}) {
    QCOMPARE(picture.pixel(place * 4 + QPoint(2, 2)), Pixel(exact, place.x(), place.y()));
  }
}

void GraphFileTest::SvgIsWellFormed() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.svg"));
  QCOMPARE(SaveGraph(Example(), path), QString());
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&file);
  QStringList texts;
  int paths = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == QStringLiteral("text")) texts << reader.readElementText();
    if (reader.name() == QStringLiteral("path")) ++paths;
  }
  QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
  QCOMPARE(texts, QStringList({"x=0", "y=0", "x min=-10", "x max=10", "y min=-10", "y max=10"}));
  QCOMPARE(paths, 3);
}

void GraphFileTest::AnySuffixElseIsABitmap() {
  QTemporaryDir folder;
  for (const char* name : {"graph", "graph.BMP", "graph.txt"}) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    QCOMPARE(SaveGraph(Example(), path), QString());
    QCOMPARE(QFile(path).size(), 21238);
  }
}

void GraphFileTest::AFileIsReplacedWhole() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.bmp"));
  QFile old(path);
  QVERIFY(old.open(QIODevice::WriteOnly));
  old.write(QByteArray(100000, 'x'));
  old.close();
  QCOMPARE(SaveGraph(Example(), path), QString());
  QCOMPARE(QFile(path).size(), 21238);
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void GraphFileTest::AFailedSaveLeavesTheOldFile() {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("graph.bmp"));
  QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("graph.bmp")));
  QVERIFY(!SaveGraph(Example(), path).isEmpty());
  QVERIFY(QDir(path).exists());
  QCOMPARE(SaveGraph(Example(), folder.filePath(QStringLiteral("none/graph.bmp"))),
           QStringLiteral("No such file or directory"));
  QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(), 1);
}

void GraphFileTest::AFullDiskLeavesTheOldFile_data() {
  QTest::addColumn<QString>("name");
  for (const char* name : {"graph.bmp", "graph.png", "graph.svg"}) QTest::newRow(name) << name;
}

void GraphFileTest::AFullDiskLeavesTheOldFile() {
  QFETCH(QString, name);
  QTemporaryDir folder;
  QFile file(folder.filePath(name));
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write("old"), qint64{3});
  file.close();
  // Small pictures, too: these are written at once.
  for (const test::GoldenGraph& golden : test::GoldenGraphs()) {
    const GraphModel graph = golden.make();
    const test::FullDisk full(0);
    QVERIFY(!SaveGraph(graph, file.fileName()).isEmpty());
  }
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll(), QByteArray("old"));
  QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{name});
}

}  // namespace vexa

QTEST_MAIN(vexa::GraphFileTest)
#include "GraphFileTest.moc"
