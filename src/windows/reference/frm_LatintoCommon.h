// A child window that lists animals with their common and Latin names from one of the two name files, sorted by either
// name. Each load replaces the list. It does not use the database.
#pragma once

#include "windows/shell/ChildForm.h"

class ListView;
class QGroupBox;
class QLabel;
class QRadioButton;
class QStatusBar;

class frm_LatintoCommon : public ChildForm
{
    Q_OBJECT
public:
    explicit frm_LatintoCommon(const FormContext &context);

    void Form_Load();
    void Form_Activate() override;
    /// Fill the list from the saltwater or the freshwater file. If the file is missing or cannot be read, a box says
    /// so.
    void LoadSalt();
    void LoadFresh();

    ListView *lstv_Names;
    QGroupBox *Frame1;
    QRadioButton *opt_Freshwater, *opt_Salt;
    QStatusBar *StatusBar1;

private:
    void makeControls();
    void tell(const QString &progress);
    void load(const QString &fileName, const QString &whereItFails);

    void opt_Salt_Click() { LoadSalt(); }
    void opt_Freshwater_Click() { LoadFresh(); }
    void lstv_Names_ColumnClick(int index);

    QLabel *m_panel;
};
