#pragma once
// An immutable value shared between copies of a storage record: copying a
// record costs a reference count, and a record built without a value reads
// the type's default one, so no getter has to test for null. Header-only,
// as it is a template over the record's facts.
#include <memory>
#include <utility>

template <typename T> class SharedFacts {
public:
    SharedFacts() : _value(_empty()) {}
    explicit SharedFacts(std::shared_ptr<T const> value)
        : _value(value ? std::move(value) : _empty()) {}

    // Holds a copy from now on; records copied earlier keep the value they had.
    void set(T const& value) { _value = std::make_shared<T const>(value); }

    T const& operator*() const { return *_value; }
    T const* operator->() const { return _value.get(); }

    // The very same value, which spares comparing it field by field.
    bool shares(SharedFacts const& other) const { return _value == other._value; }

private:
    // One default value per type, shared by every empty record.
    static std::shared_ptr<T const> const& _empty() {
        static auto const empty = std::make_shared<T const>();
        return empty;
    }

    std::shared_ptr<T const> _value;
};
