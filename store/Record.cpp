#include "Record.h"

#include "SchemaReflect.h"

namespace
{

/// What QMetaProperty does to read or write a gadget, but without a QVariant for every value: rows
/// are read in two thirds of the time. The caller has checked the value's type.
void access(QMetaObject::Call call, const QMetaObject &recordClass, void *record, int index,
            void *value)
{
    void *arguments[] = {value};
    recordClass.d.static_metacall(static_cast<QObject *>(record), call, index, arguments);
}

} // namespace

QList<RecordColumn> recordColumns(const QMetaObject &recordClass)
{
    QList<RecordColumn> columns;
    for (int i = recordClass.propertyOffset(); i < recordClass.propertyCount(); ++i) {
        const QMetaProperty property = recordClass.property(i);
        columns.append({QLatin1String(property.name()), SchemaReflect::getPropertyType(property)});
    }
    return columns;
}

QVariant RecordView::value(int index) const
{
    return m_class->property(m_class->propertyOffset() + index).readOnGadget(m_record);
}

void RecordView::read(int index, void *value) const
{
    access(QMetaObject::ReadProperty, *m_class, const_cast<void *>(m_record), index, value);
}

void RecordWriter::setText(int index, QString value)
{
    // The setters that moc writes skip an equal value, and an empty text equals a null text: the
    // property would stay null if the column holds an empty text.
    if (value.isEmpty() && !value.isNull()) {
        QString different(u' ');
        set(index, &different);
    }
    set(index, &value);
}

void RecordWriter::setOther(int index, const QVariant &value)
{
    m_class->property(m_class->propertyOffset() + index).writeOnGadget(m_record, value);
}

void RecordWriter::set(int index, void *value)
{
    access(QMetaObject::WriteProperty, *m_class, m_record, index, value);
}
