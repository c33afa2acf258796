// One instance of each window, made at its first use: Form<frm_X>() gives it, Unload() destroys its controls. A window
// whose own code is still on the stack is freed only when that code has returned (Forms::Pin, and every modal showing).
// Windows are made with the process-wide values in hand, and their Form_Load, where they have one, runs before anyone
// else sees them.
#pragma once

#include <map>

#include <QDialog>
#include <QPointer>

#include "logic/shell/Globals.h"
#include "windows/shell/WindowMemory.h"

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
            F *made = new F(m_globals, F::isDialog ? m_main.data() : nullptr);
            made->setObjectName(QLatin1String(F::staticMetaObject.className()));
            slot = made;
            RememberWindow(*made);
            if constexpr (requires { made->Form_Load(); })
                made->Form_Load();
        }
        return static_cast<F &>(*slot);
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
    /// The window that dialogs belong to.
    void setMainWindow(QWidget *main) { m_main = main; }

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
    struct Hold
    {
        int pins = 0;
        bool unloaded = false;
    };

    Globals &m_globals;
    std::map<const QMetaObject *, QPointer<QWidget>> m_forms;
    std::map<QWidget *, Hold> m_holds;
    QPointer<QWidget> m_main;
    Forms *m_previous;
};

template <class F> F &Form() { return Forms::current().form<F>(); }

inline void Unload(QWidget &form) { Forms::current().unload(form); }
