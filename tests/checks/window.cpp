// A window as Form() makes it. With PRIVATE_LOAD or NO_OBJECT defined, it must not compile, because its Form_Load would
// never run, or it would have the same key in Forms as its base class.
#include "windows/shell/ChildForm.h"

class frm_Window : public ChildForm
{
#ifndef NO_OBJECT
    Q_OBJECT
#endif

public:
    explicit frm_Window(const FormContext &context) : ChildForm(context) {}

#ifdef PRIVATE_LOAD
private:
#endif
    void Form_Load() {}
};

void use() { Form<frm_Window>(); }
