#pragma once

#include <QWidget>

namespace kelvora {

/// The letterhead strip of the calculation windows: the maker's logo and three of its lines.
class Membrete : public QWidget {
    Q_OBJECT

public:
    explicit Membrete(QWidget* padre = nullptr);
};

}  // namespace kelvora
