#pragma once

#include "ui/model/main/UprightOffer.h"

#include <QObject>
#include <QThreadPool>
#include <functional>

namespace vantorium::ui {

/// Looks on a worker thread whether added photographs lie on their side, and then offers to turn them upright. The
/// question is asked from the event loop, as soon as the user may be asked.
class UprightQuestion : public QObject {
  Q_OBJECT

 public:
  struct Parts {
    const core::Project& project;
    const env::PathMap& paths;
    env::MessageBoxPort& boxes;
    std::function<bool()> mayAsk;
  };

  explicit UprightQuestion(const Parts& parts, QObject* parent = nullptr);
  ~UprightQuestion() override;

  /// Call around what adds photographs.
  void BeforeAdding() { offer_.BeforeAdding(); }
  void AfterAdding();
  /// Drops the search in progress; the next project may be asked about.
  void ForgetProject();

 signals:
  /// The user wishes the photographs to be turned.
  void Accepted();

 private:
  void AskWhenPossible(const std::stop_token& stop);

  Parts parts_;
  UprightOffer offer_;
  QThreadPool worker_;
  std::stop_source stop_;
};

}  // namespace vantorium::ui
