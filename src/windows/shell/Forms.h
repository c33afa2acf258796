// One instance of each window, made at its first use: Form<frm_X>() gives it, Unload() destroys its controls. A window
// whose own code is still on the stack is freed only when that code has returned (Forms::Pin, and every modal showing).
// Windows are made with what they work with (FormContext), and their Form_Load runs before anyone else sees them. The
// main window is made first.
#pragma once

#include <map>
#include <type_traits>

#include <QDialog>
#include <QPointer>

#include "logic/shell/Globals.h"
#include "windows/shell/MainWindow.h"
#include "windows/shell/WindowMemory.h"

/// What a window is made with. Everything in it lives longer than the window.
struct FormContext
{
    Globals &globals;
    MainWindow &main;
    QWidget *parent; ///< of a dialog: the main window
};

class Forms
{
public:
    /// Becomes the registry in use; the values are the caller's and must live longer.
    explicit Forms(Globals &globals);
    /// Destroys every window that is left.
    ~Forms();
    Forms(const Forms &) = delete;
    Forms &operator=(const Forms &) = delete;

    static Forms &current();

    template <class F> F &form()
    {
        QPointer<QWidget> &slot = m_forms[&F::staticMetaObject];
        if (!slot) {
            F *made = make<F>();
            made->setObjectName(QLatin1String(F::staticMetaObject.className()));
            slot = made;
            RememberWindow(*made);
            if constexpr (!std::is_base_of_v<MainWindow, F>)
                made->Form_Load();
        }
        return *qobject_cast<F *>(slot.data()); // which does not compile for a class without Q_OBJECT
    }
    /// The window if it is loaded, visible or not; null otherwise.
    template <class F> F *loaded() const
    {
        const auto found = m_forms.find(&F::staticMetaObject);
        return found == m_forms.end() ? nullptr : static_cast<F *>(found->second.data());
    }

    /// Hides a window and destroys it, at once forgotten: its next use makes a new one.
    void unload(QWidget &form);
    /// Shows a dialog and waits until it is closed or unloaded.
    void showModal(QDialog &dialog);
    /// Keeps a window alive while a method of it waits.
    class Pin
    {
    public:
        explicit Pin(QWidget &form);
        ~Pin();
        Pin(const Pin &) = delete;
        Pin &operator=(const Pin &) = delete;

    private:
        QPointer<QWidget> m_form;
    };

private:
    template <class F> F *make()
    {
        if constexpr (std::is_base_of_v<MainWindow, F>) {
            F *made = new F(m_globals);
            m_main = made;
            m_mainWindow = made;
            return made;
        } else {
            return new F(FormContext{m_globals, mainWindow(), F::isDialog ? m_main.data() : nullptr});
        }
    }
    MainWindow &mainWindow();

    struct Hold
    {
        int pins = 0;
        bool unloaded = false;
    };

    Globals &m_globals;
    std::map<const QMetaObject *, QPointer<QWidget>> m_forms;
    std::map<QWidget *, Hold> m_holds;
    QPointer<QWidget> m_main;
    MainWindow *m_mainWindow = nullptr; ///< the same
    Forms *m_previous;
};

template <class F> F &Form() { return Forms::current().form<F>(); }

inline void Unload(QWidget &form) { Forms::current().unload(form); }
