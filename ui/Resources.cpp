#include "ui/Resources.h"

#include <QDir>

// Q_INIT_RESOURCE must stand outside of any namespace.
void LoadVantoriumResources() {
  Q_INIT_RESOURCE(vantorium);
}
