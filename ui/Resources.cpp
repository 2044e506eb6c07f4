#include "ui/Resources.h"

#include <QDir>

// The toolkit's macro wants to stand outside of any namespace.
void LoadVantoriumResources() {
  Q_INIT_RESOURCE(vantorium);
}
