#pragma once

#include <QWidget>

enum MousePointer
{
    vbDefault = 0,
    vbHourglass = 11,
};

/// A window of the program. Its name is its `objectName`.
///
/// `Forms::use<frmvenda>()` makes and loads it at its first use; `Show` opens it or brings it forward; closing it by
/// any road runs `Form_Unload` once. Its memory outlives every routine that still waits inside it.
class Form : public QWidget
{
    Q_OBJECT

public:
    Form();

    QString Name() const { return objectName(); }
    bool isLoaded() const { return m_loaded; }

    /// Opens the window or brings it forward; one that was unloaded meanwhile stays closed.
    void Show();
    void Unload();

    /// One of `MousePointer`.
    void setMousePointer(int pointer);

protected:
    /// Gives the window the height of what it shows now.
    void fitHeight();

    virtual void Form_Load() {}
    /// Runs when the program's active window changes to this one; coming back from a message box or from another
    /// program is no activation.
    virtual void Form_Activate() {}
    virtual void Form_Unload() {}

    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    friend class Forms;
    void Load();
    void fitToScreen();
    void scrollContents(bool sideways);

    bool m_loaded = false;
    /// Holds the contents of a window that is larger than the screen.
    QWidget *m_page = nullptr;
};

/// Keeps a window above all others, or lets it go back among them.
void Sempre_No_Topo(Form &form, bool flag);
