#include <utility>
#include <vector>

#include <rapidjson/reader.h>

#include "state/item_list.h"
#include "state/json_codec.h"
#include "state/preference_keys.h"

namespace {

/// Values are destroyed recursively, so a file must not decide how deep.
constexpr std::size_t deepestNesting = 200;

/// Builds the values as the parser comes across them. Records of the item list take the short way
/// into an ItemRecord; only one with something unusual becomes a dictionary in between.
class StoreBuilder final : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, StoreBuilder> {
public:
    bool Null() { return put(QVariant::fromValue(nullptr)); }
    bool Bool(bool value) { return put(value); }
    bool RawNumber(const char* text, rapidjson::SizeType length, bool copy);
    bool String(const char* text, rapidjson::SizeType length, bool copy);
    bool Key(const char* text, rapidjson::SizeType length, bool copy);
    bool StartObject();
    bool EndObject(rapidjson::SizeType count);
    bool StartArray();
    bool EndArray(rapidjson::SizeType count);

    StoreContents takeContents() { return std::exchange(contents_, {}); }

private:
    enum class Kind { Dictionary, Array, ItemArray, Record };
    enum class Field { None, Path, Title, Visible };

    struct Container {
        Kind kind;
        QString key;
        QVariantMap dictionary;
        QVariantList array;
    };

    bool open(Kind kind);
    Container close();
    bool put(const QVariant& value);
    bool inRecord() const { return !open_.empty() && open_.back().kind == Kind::Record; }
    void makeRecordADictionary();

    std::vector<Container> open_;
    ItemList items_;
    StoreContents contents_;

    // The record being read. Null strings and no flag for what has not come yet.
    Field field_ = Field::None;
    QString path_;
    QString title_;
    std::optional<VisibleForm> visible_;
};

bool StoreBuilder::open(Kind kind) {
    if (open_.size() >= deepestNesting) {
        return false;
    }
    open_.push_back({kind, {}, {}, {}});
    return true;
}

StoreBuilder::Container StoreBuilder::close() {
    Container container = std::move(open_.back());
    open_.pop_back();
    return container;
}

bool StoreBuilder::put(const QVariant& value) {
    if (open_.empty()) {
        return false;
    }
    if (inRecord()) {
        makeRecordADictionary();
    }
    Container& container = open_.back();
    if (container.kind == Kind::Dictionary) {
        container.dictionary.insert(container.key, value);
    } else if (container.kind == Kind::Array) {
        container.array.append(value);
    } else {
        items_.append(ItemRecord::fromVariant(value));
    }
    return true;
}

// RapidJSON's own exact conversion of reals is undefined for some long ones.
bool StoreBuilder::RawNumber(const char* text, rapidjson::SizeType length, bool /*copy*/) {
    const QByteArrayView view(text, static_cast<qsizetype>(length));
    bool fits = false;
    const bool integer = !view.contains('.') && !view.contains('e') && !view.contains('E');
    if (const qlonglong value = integer ? view.toLongLong(&fits) : 0; fits) {
        if (value != 1 || !inRecord() || field_ != Field::Visible) {
            return put(QVariant::fromValue(value));
        }
        visible_ = VisibleForm::NumberOne;
        return true;
    }
    if (const qulonglong value = integer ? view.toULongLong(&fits) : 0; fits) {
        return put(QVariant::fromValue(value));
    }
    const double value = view.toDouble(&fits);
    return fits && put(value);
}

bool StoreBuilder::String(const char* text, rapidjson::SizeType length, bool /*copy*/) {
    const QUtf8StringView view(text, static_cast<qsizetype>(length));
    if (!inRecord() || field_ == Field::None) {
        return put(view.toString());
    }
    if (field_ == Field::Path) {
        path_ = view.toString();
    } else if (field_ == Field::Title) {
        title_ = view.toString();
    } else if (length == 1 && (*text == '0' || *text == '1')) {
        visible_ = *text == '1' ? VisibleForm::StringOne : VisibleForm::StringZero;
    } else {
        return put(view.toString());
    }
    return true;
}

bool StoreBuilder::Key(const char* text, rapidjson::SizeType length, bool /*copy*/) {
    const QLatin1StringView key(text, static_cast<qsizetype>(length));
    if (inRecord()) {
        if (key == ItemRecord::filePathKey) {
            field_ = Field::Path;
        } else if (key == ItemRecord::fileTitleKey) {
            field_ = Field::Title;
        } else if (key == ItemRecord::visibleKey) {
            field_ = Field::Visible;
        } else {
            makeRecordADictionary();
        }
    }
    if (!inRecord()) {
        open_.back().key = QString::fromUtf8(text, static_cast<qsizetype>(length));
    }
    return true;
}

bool StoreBuilder::StartObject() {
    if (open_.empty() || open_.back().kind != Kind::ItemArray) {
        if (inRecord()) {
            makeRecordADictionary();
        }
        return open(Kind::Dictionary);
    }
    field_ = Field::None;
    path_ = QString();
    title_ = QString();
    visible_.reset();
    return open(Kind::Record);
}

bool StoreBuilder::EndObject(rapidjson::SizeType /*count*/) {
    if (inRecord()) {
        if (visible_ && !path_.isNull() && !title_.isNull() && title_ == lastPathComponent(path_)) {
            open_.pop_back();
            items_.append(ItemRecord::forPath(path_, *visible_));
            return true;
        }
        makeRecordADictionary();
    }
    Container container = close();
    if (!open_.empty()) {
        return put(container.dictionary);
    }
    contents_ = std::move(container.dictionary);
    return true;
}

bool StoreBuilder::StartArray() {
    if (open_.empty()) {
        return false;
    }
    if (inRecord()) {
        makeRecordADictionary();
    }
    if (open_.size() > 1 || open_.back().key != itemListKey) {
        return open(Kind::Array);
    }
    items_ = ItemList();
    return open(Kind::ItemArray);
}

bool StoreBuilder::EndArray(rapidjson::SizeType /*count*/) {
    const Container container = close();
    return put(container.kind == Kind::ItemArray
                   ? QVariant::fromValue(std::exchange(items_, ItemList()))
                   : QVariant(container.array));
}

void StoreBuilder::makeRecordADictionary() {
    Container& record = open_.back();
    record.kind = Kind::Dictionary;
    const auto keep = [&record](QLatin1StringView key, const QVariant& value) {
        record.dictionary.insert(key, value);
    };
    if (!path_.isNull()) {
        keep(ItemRecord::filePathKey, path_);
    }
    if (!title_.isNull()) {
        keep(ItemRecord::fileTitleKey, title_);
    }
    if (visible_) {
        keep(ItemRecord::visibleKey, ItemRecord::forPath(QString(), *visible_).visible());
    }
    switch (field_) {
        case Field::None:
            break;
        case Field::Path:
            record.key = ItemRecord::filePathKey;
            break;
        case Field::Title:
            record.key = ItemRecord::fileTitleKey;
            break;
        case Field::Visible:
            record.key = ItemRecord::visibleKey;
            break;
    }
}

}  // namespace

std::optional<StoreContents> decodeStore(QByteArray json) {
    // RapidJSON's own check reads past the end when that is in the middle of a character.
    if (!json.isValidUtf8()) {
        return std::nullopt;
    }
    constexpr unsigned flags = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag |
                               rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::InsituStringStream stream(json.data());
    rapidjson::Reader reader;
    StoreBuilder builder;
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, builder);
    // A zero byte looks like the end to the parser.
    if (result.IsError() || stream.Tell() != static_cast<std::size_t>(json.size())) {
        return std::nullopt;
    }
    return builder.takeContents();
}
