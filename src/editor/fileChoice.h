#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace zdt {

/// Asks for a folder or a picture and gives its path; empty if the author cancelled. `start` is where to begin.
using ChoosePath = std::function<QString(QWidget* parent, const QString& start)>;

/// The two choosers of the window. They are drawn by the program, so that they speak its language.
[[nodiscard]] QString chooseFolder(QWidget* parent, const QString& start);
[[nodiscard]] QString choosePicture(QWidget* parent, const QString& start);

} // namespace zdt
