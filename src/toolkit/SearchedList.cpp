#include "toolkit/SearchedList.h"

#include <QApplication>

#include "toolkit/TypedSearch.h"

namespace vexa {

bool SearchedList::IsSearching() const {
  return !typed.isEmpty() && sinceTyped.isValid() &&
         !sinceTyped.hasExpired(QApplication::keyboardInputInterval());
}

void SearchedList::keyboardSearch(const QString& search) {
  if (!IsSearching()) typed.clear();
  sinceTyped.start();
  typed += search;
  std::vector<std::wstring> entries;
  for (int row = 0; row < model()->rowCount(); ++row) {
    entries.push_back(model()->index(row, modelColumn()).data().toString().toStdWString());
  }
  const int found = FindTyped(entries, typed.toStdWString(), currentIndex().row());
  if (found >= 0) setCurrentIndex(model()->index(found, modelColumn()));
}

}  // namespace vexa
