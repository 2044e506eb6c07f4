#include "ui/widgets/NameBox.h"

#include "ui/qt/QtText.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace vantorium::ui {
namespace {

QLineEdit* LineOf(QWidget& control, const NameField& name) {
  auto* list = qobject_cast<QComboBox*>(&control);
  if (list == nullptr) return qobject_cast<QLineEdit*>(&control);
  for (const std::string_view text : name.offers) list->addItem(ToQt(text));
  list->setCompleter(nullptr);  // a completer would change what is typed
  return list->lineEdit();
}

}  // namespace

NameBox::NameBox(QWidget& form, const NameField& name) : QObject(&form), name_(name) {
  auto* control = form.findChild<QWidget*>(ToQt(name.control));
  line_ = LineOf(*control, name);
  connect(line_, &QLineEdit::textChanged, this, &NameBox::Edited);
  control->installEventFilter(this);
  line_->installEventFilter(this);
}

void NameBox::Show(const core::GalleryProject& project) {
  const QSignalBlocker quiet(this);
  const QString text = ToQt(ShownName(name_, project));
  if (auto* list = qobject_cast<QComboBox*>(line_->parentWidget())) list->setCurrentIndex(list->findText(text));
  line_->setText(text);
}

void NameBox::Store(core::ProjectEditor& editor) const {
  StoreName(name_, FromQt(line_->text()), editor);
}

bool NameBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const QString key = static_cast<QKeyEvent*>(event)->text();
    const QString typed = ToQt(NameKey(name_, FromQt(key)));
    if (typed != key) {
      line_->insert(typed);
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace vantorium::ui
