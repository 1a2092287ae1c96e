// The smallest Qt window with a menu bar: what any window of the kind costs, to hold the suite's figures
// against.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.menuBar()->addMenu("&File")->addAction("E&xit", &application, &QApplication::quit);
  window.resize(449, 366);
  window.show();
  return QApplication::exec();
}
