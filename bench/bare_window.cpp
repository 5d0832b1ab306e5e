#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

/// Baseline cost of a Qt program: a window with a menu and as many empty widgets as the game has
/// cells.
int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.menuBar()->addMenu("Puzzle")->addAction("Exit");
  auto* area = new QWidget;
  area->setFixedSize(302, 310);
  for (int i = 0; i < 54; ++i) {
    (new QWidget(area))->setGeometry(i % 7 * 30, i / 7 * 30, 30, 30);
  }
  window.setCentralWidget(area);
  window.show();
  return QApplication::exec();
}
