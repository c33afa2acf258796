// One livestock entry: when an animal arrived, where it came from, what it cost, and what happened to it. The logbook
// opens the row and fills the controls; OK checks them and writes them into the row. The list of animals comes from the
// database or from a name file. At first it is the list for the water that the logbook has set (gTankWaterType); the
// keeper can switch it.
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
    /// Fills the boxes from the row, except for its date and time, which the logbook sets from its list.
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
    /// Fills a box with the texts that were used before, without blank ones. `sql` selects and sorts them.
    void fillCombo(QComboBox &combo, const QString &sql);
    void listFromFile(const Source &source);
    void listFromDatabase(const Source &source);
    void SaltListFromDatabase();
    void FreshListFromDatabase();
    void showAnimals(const QStringList &names);
    void tell(const QString &progress);

    /// Runs the checks in their order. At the first fault it shows the message and returns false.
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
