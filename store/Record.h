#pragma once

#include <QList>
#include <QMetaProperty>

#include <concepts>

/// A record class is a plain value type with Q_GADGET whose own properties, in the order in which
/// they are declared, are the columns of one table: property 0 is the integer key `ID`. There are
/// no other conditions; `Q_PROPERTY(int ID MEMBER ID)` with a public member is the shortest form.
/// Properties of a base class do not count.
template <class T>
concept RecordClass = std::default_initializable<T> && std::same_as<
    std::remove_cvref_t<decltype(T::staticMetaObject)>, QMetaObject>;

/// How the values of a property are written and read: `int`, `double` and `QString`. Properties of
/// any other type are not mapped to columns.
enum class PropertyType { Integer, Double, Text, Other };

/// What reading and writing need to know about a property.
struct RecordColumn {
    QLatin1String name;
    PropertyType type;
};

/// The properties of a record class in their order, without those of a base class.
QList<RecordColumn> recordColumns(const QMetaObject &recordClass);

// Code that works on records is not a template: the three classes below hold a record's class and
// its address. They refer to the caller's record or list, which must outlive them.

/// A record that is read. Any record class converts to it, so operations that read a record take a
/// RecordView by value. Positions count from 0, the key.
class RecordView
{
public:
    template <RecordClass T>
    RecordView(const T &record) : m_class(&T::staticMetaObject), m_record(&record)
    {
    }

    int count() const { return m_class->propertyCount() - m_class->propertyOffset(); }
    const QMetaObject &recordClass() const { return *m_class; }
    QVariant value(int index) const; ///< Invalid for a position past the end.
    // The property must have the type that is read.
    int integer(int index) const { return get<int>(index); }
    double number(int index) const { return get<double>(index); }
    QString text(int index) const { return get<QString>(index); }

private:
    template <class Value>
    Value get(int index) const
    {
        Value value{};
        read(index, &value);
        return value;
    }
    void read(int index, void *value) const;

    const QMetaObject *m_class;
    const void *m_record;
};

/// A record that is filled. The property must have the setter's type, except for setOther().
class RecordWriter
{
public:
    template <RecordClass T>
    explicit RecordWriter(T &record) : RecordWriter(&T::staticMetaObject, &record)
    {
    }
    RecordWriter(const QMetaObject *recordClass, void *record)
        : m_class(recordClass), m_record(record)
    {
    }

    const QMetaObject &recordClass() const { return *m_class; }
    void setInteger(int index, int value) { set(index, &value); }
    void setDouble(int index, double value) { set(index, &value); }
    void setText(int index, QString value);
    /// Any property: the value is converted to its type. If it cannot be, nothing changes.
    void setOther(int index, const QVariant &value);

private:
    void set(int index, void *value);

    const QMetaObject *m_class;
    void *m_record;
};

/// A list that records are appended to. Its class also serves as the caller's prototype.
class RecordList
{
public:
    template <RecordClass T>
    explicit RecordList(QList<T> &records)
        : m_class(&T::staticMetaObject), m_records(&records), m_append(&appendTo<T>)
    {
    }

    /// The writer is valid until the next append().
    RecordWriter append() { return {m_class, m_append(m_records)}; }
    const QMetaObject &recordClass() const { return *m_class; }

private:
    template <RecordClass T>
    static void *appendTo(void *records) // the one step that must know the type of the list
    {
        return &static_cast<QList<T> *>(records)->emplaceBack();
    }

    const QMetaObject *m_class;
    void *m_records;
    void *(*m_append)(void *records);
};
