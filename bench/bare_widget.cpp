// The least program of the toolkit: what a start costs before the calculator adds anything.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.show();
  return application.exec();
}
