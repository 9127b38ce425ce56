# What nearly every file of a layer includes, compiled once instead of with each of them. Of our own
# headers only the one that most files include anyway: a change to it compiles as much again with
# this as without. Each file still includes all it uses; the presets release and bench build without
# these headers and would not compile otherwise.
set(standard_headers
    <algorithm> <array> <charconv> <cmath> <cstdint> <cstdio> <cstring> <filesystem> <functional>
    <iterator> <limits> <map> <memory> <numeric> <optional> <set> <span> <string> <string_view>
    <system_error> <unordered_map> <unordered_set> <utility> <vector>
    "${CMAKE_SOURCE_DIR}/src/core/program.h")
set(qt_headers
    <QAbstractTableModel> <QAction> <QApplication> <QButtonGroup> <QCheckBox> <QCloseEvent>
    <QComboBox> <QDialog> <QDropEvent> <QEvent> <QFont> <QFontMetrics> <QGridLayout> <QGroupBox>
    <QHBoxLayout> <QHeaderView> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget>
    <QMainWindow> <QMdiArea> <QMdiSubWindow> <QMenu> <QMenuBar> <QMessageBox> <QMimeData>
    <QMouseEvent> <QObject> <QPainter> <QPlainTextEdit> <QProgressBar> <QPushButton>
    <QRadioButton> <QRegularExpression> <QScreen> <QScrollBar> <QShortcut> <QSignalBlocker>
    <QSlider> <QSpinBox> <QStackedWidget> <QStatusBar> <QString> <QStyle> <QStyledItemDelegate>
    <QTabWidget> <QTableView> <QTableWidget> <QTimer> <QToolBar> <QToolButton> <QToolTip>
    <QTreeWidget> <QVBoxLayout> <QVariant> <QWidget>
    "${CMAKE_SOURCE_DIR}/src/platform/qt/text.h" "${CMAKE_SOURCE_DIR}/src/platform/qt/look.h")

# The compiler cache must see a precompiled header as a part of what it compiles: gcc shows it where
# the preprocessor keeps its include line, clang where it holds no time.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  add_compile_options(-fpch-preprocess)
else()
  set(CMAKE_PCH_INSTANTIATE_TEMPLATES ON)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()

# A list that has changed keeps the time of an unchanged file, and what was compiled of it would stay.
if(NOT "${standard_headers};${qt_headers}" STREQUAL "$CACHE{KELVORA_PRECOMPILED}")
  file(GLOB_RECURSE stale ${CMAKE_BINARY_DIR}/*/cmake_pch.hxx*)
  if(stale)
    file(REMOVE ${stale})
  endif()
  set(KELVORA_PRECOMPILED "${standard_headers};${qt_headers}" CACHE INTERNAL "What is precompiled")
endif()
