#pragma once

#include "RecordViewController.h"
#include "UserSchema.h"

/// A skeleton for further record pages, on the table "Stock": it adds, edits and deletes records
/// but has no fields and shows no text in its rows. A page made from it replaces the class of
/// `schema` and adds the fields.
class TemplateViewController : public RecordViewController<UserSchema>
{
    Q_OBJECT

public:
    explicit TemplateViewController(QWidget *parent = nullptr);

    /// The record that was worked on last: one of `data`, or a fresh one.
    UserSchema schema;

    void reloadData() override;
    QString objectValueForTableColumn(const QString &column, int row) override;

protected:
    void initLocalizables() override;
    void setAllStatus(Operation status) override;
    UserSchema getSchema() override;
    UserSchema editedRecord(int ID) override;
    bool verify() override { return true; }
    void deleteRecord(int row) override;
};
