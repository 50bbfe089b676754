#pragma once

#include <QLabel>

/// A label for texts with long words, such as a path: breaks them wherever the width ends, so that
/// nothing is cut off, no width is asked for, and its text stays exactly what was set.
class WrapLabel final : public QLabel {
    Q_OBJECT

public:
    explicit WrapLabel(QWidget* parent = nullptr);

    /// Shows a file's name or path as shownName() makes it; the label's Copy command copies the
    /// name itself.
    void setName(const QString& name);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QString name_;
};
