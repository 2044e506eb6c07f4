// Shows an empty Qt window of the size of Vantorium's.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle("Empty Window");
  window.resize(773, 534);
  window.show();
  return QApplication::exec();
}
