// The registry of windows, with one instance of each, made at its first use: Form<frm_X>() returns it, Unload() deletes
// it. A window whose own code is still on the stack is deleted only when that code has returned (Forms::Pin, and every
// modal window while it is shown). A window is made with a FormContext, and its Form_Load runs before any other code
// sees it. The main window must be made first.
#pragma once

#include <functional>
#include <map>
#include <type_traits>

#include <QDialog>
#include <QPointer>

#include "logic/shell/Globals.h"
#include "windows/shell/MainWindow.h"
#include "windows/shell/WindowMemory.h"

/// What a window is made with. All of it outlives the window.
struct FormContext
{
    Globals &globals;
    MainWindow &main;
    QWidget *parent; ///< the main window for a dialog, otherwise null
};

class Forms
{
public:
    /// Becomes the registry in use. `globals` belongs to the caller and must outlive it.
    explicit Forms(Globals &globals);
    /// Deletes all windows that are left.
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
        return *qobject_cast<F *>(slot.data()); // does not compile for a class without Q_OBJECT
    }
    /// The window if it is loaded, visible or not; null otherwise.
    template <class F> F *loaded() const
    {
        const auto found = m_forms.find(&F::staticMetaObject);
        return found == m_forms.end() ? nullptr : static_cast<F *>(found->second.data());
    }

    /// Hides a window and deletes it. It leaves the registry at once, so that its next use makes a new one.
    void unload(QWidget &form);
    /// Shows a dialog and waits until it is closed or unloaded.
    void showModal(QDialog &dialog);
    /// The same for a dialog whose own code shows it and waits.
    void whileModal(QDialog &dialog, const std::function<void()> &wait);
    /// Keeps a window alive while one of its functions waits.
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
    MainWindow *m_mainWindow = nullptr; ///< the same object as m_main
    Forms *m_previous;
};

template <class F> F &Form() { return Forms::current().form<F>(); }

inline void Unload(QWidget &form) { Forms::current().unload(form); }
