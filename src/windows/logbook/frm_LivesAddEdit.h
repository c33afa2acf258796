// One livestock entry: an animal, when it came, at which price, from where, and what became of it. The logbook opens
// the row and fills the controls; OK tests them and writes them there. The list of animals comes from the database or
// from a name file, for the water that the logbook has set (gTankWaterType), and can be switched.
#pragma once

#include "windows/logbook/EntryForm.h"

class QLineEdit;
class QRadioButton;
class QStringListModel;

class frm_LivesAddEdit : public EntryForm
{
    Q_OBJECT
public:
    explicit frm_LivesAddEdit(const FormContext &context);

    void Form_Load();
    void setDateOrder();
    /// The values that a new entry starts with.
    void setDefaults();
    /// The current row but for its date and time, which the logbook sets from the list.
    void load(Recordset &row);
    void ShowWindow(const Recordset &row, const QString &tankId);

    void Salt_List_From_File();
    void Fresh_List_From_File();

    QComboBox *lst_AnimalList;
    QRadioButton *opt_Fresh;
    QRadioButton *opt_Saltwater;
    MaskedBox *txt_DateAdded;
    MaskedBox *txt_timeadded;
    MaskedBox *txt_quantity;
    QComboBox *lst_where;
    QLineEdit *txt_pricepaid;
    QLineEdit *txt_pricesold;
    MaskedBox *txt_datelost;
    QComboBox *lst_Status;
    QPlainTextEdit *txt_Comment;
    QPushButton *cmd_OK;
    QPushButton *cmd_Cancel;
    QPushButton *cmd_Caldate;

private:
    struct Source;
    static const Source saltSource;
    static const Source freshSource;

    void Cancel() override { cmd_Cancel_Click(); }
    QWidget *makePage();
    void makeControls();
    QWidget *makeListType();
    /// What was used before, in the order of the alphabet, without blanks.
    void fillCombo(QComboBox &combo, const QString &sql);
    void listFromFile(const Source &source);
    void listFromDatabase(const Source &source);
    void SaltListFromDatabase();
    void FreshListFromDatabase();
    void showAnimals(const QStringList &names);
    void tell(const QString &progress);

    /// Checks in their order; false, after its box, at the first fault.
    bool fieldsAreGood();
    bool datesAndPricesAreGood();
    bool priceIsGood(QLineEdit &box, const QString &name);
    bool txt_dateadded_LostFocus();
    void txt_dateadded_ValidationError();
    void store();

    void opt_Saltwater_Click();
    void opt_fresh_click();
    void cmd_OK_Click();
    void cmd_Cancel_Click();
    void cmd_caldate_Click();

    QStringListModel *m_animals;
};
