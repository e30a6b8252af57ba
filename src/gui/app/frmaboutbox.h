#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAboutBox;
}

namespace kelvora {

/// The modal about window: version, rights and the maker's lines.
class frmAboutBox : public QDialog {
    Q_OBJECT

public:
    explicit frmAboutBox(QWidget* padre = nullptr);
    ~frmAboutBox() override;

private:
    std::unique_ptr<Ui::frmAboutBox> mUi;
};

}  // namespace kelvora
