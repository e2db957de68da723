// What screen readers call the main window's controls, and the labels of any window that show a
// value, named by what the value is as well as by the value.
#pragma once

class QLabel;
class QString;
class QWidget;

namespace griglione {

// Gives the controls of the main window their accessible names and descriptions.
void nameMainWindowControls(QWidget* window);

// Shows `text` in a label that holds a value and names the label for screen readers by its
// description and the value: "I tuoi punti: 320".
void setValueText(QLabel* label, const QString& text);

} // namespace griglione
