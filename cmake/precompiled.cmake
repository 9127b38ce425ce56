# What nearly every file of a layer includes, compiled once instead of with each of them. Library
# headers only: a change to a header of our own must not compile everything again. Each file still
# includes all it uses; the presets release and bench build without these headers and would not
# compile otherwise.
set(standard_headers
    <algorithm> <array> <charconv> <cmath> <cstdint> <cstdio> <cstring> <filesystem> <functional>
    <iterator> <limits> <map> <memory> <numeric> <optional> <set> <span> <string> <string_view>
    <system_error> <unordered_map> <unordered_set> <utility> <vector>)
set(qt_headers
    <QAbstractTableModel> <QAction> <QApplication> <QButtonGroup> <QCheckBox> <QCloseEvent>
    <QComboBox> <QDialog> <QDropEvent> <QEvent> <QFont> <QFontMetrics> <QGridLayout> <QGroupBox>
    <QHBoxLayout> <QHeaderView> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget>
    <QMainWindow> <QMdiArea> <QMdiSubWindow> <QMenu> <QMenuBar> <QMessageBox> <QMimeData>
    <QMouseEvent> <QObject> <QPainter> <QPlainTextEdit> <QProgressBar> <QPushButton>
    <QRadioButton> <QRegularExpression> <QScreen> <QScrollBar> <QShortcut> <QSignalBlocker>
    <QSlider> <QSpinBox> <QStackedWidget> <QStatusBar> <QString> <QStyle> <QStyledItemDelegate>
    <QTabWidget> <QTableView> <QTableWidget> <QTimer> <QToolBar> <QToolButton> <QToolTip>
    <QTreeWidget> <QVBoxLayout> <QVariant> <QWidget>)

# The compiler cache must see a precompiled header as a part of what it compiles: gcc shows it where
# the preprocessor keeps its include line, clang where it holds no time.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  add_compile_options(-fpch-preprocess)
else()
  set(CMAKE_PCH_INSTANTIATE_TEMPLATES ON)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()
