#include <array>
#include <cmath>

#include <rapidjson/writer.h>

#include "state/item_list.h"
#include "state/json_codec.h"

namespace {

/// The writer's output stream: gathers the bytes for the sink.
class PiecewiseStream final {
public:
    using Ch = char;

    explicit PiecewiseStream(const ByteSink& sink) : sink_(sink) {}

    void Put(char byte) {
        if (used_ == buffer_.size()) {
            Flush();
        }
        buffer_[used_++] = byte;
    }
    void Flush() {
        stopped_ = stopped_ || (used_ > 0 && !sink_(buffer_.data(), used_));
        used_ = 0;
    }
    bool stopped() const { return stopped_; }

private:
    const ByteSink& sink_;
    std::array<char, 65536> buffer_;
    std::size_t used_ = 0;
    bool stopped_ = false;
};

class StoreEncoder final {
public:
    explicit StoreEncoder(const ByteSink& sink) : stream_(sink), writer_(stream_) {}

    bool encode(const StoreContents& contents) {
        value(contents);
        stream_.Flush();
        return !stream_.stopped();
    }

private:
    void value(const QVariant& value);
    void dictionary(const QVariantMap& entries);
    void array(const QVariantList& values);
    void items(const ItemList& list);
    void record(const ItemRecord& record);
    void text(QStringView text);
    void name(QLatin1StringView name) { writer_.Key(name.data(), length(name.size())); }
    void real(double value);

    static rapidjson::SizeType length(qsizetype size) {
        return static_cast<rapidjson::SizeType>(size);
    }

    PiecewiseStream stream_;
    rapidjson::Writer<PiecewiseStream> writer_;
};

void StoreEncoder::value(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QString:
            return text(value.toString());
        case QMetaType::Bool:
            writer_.Bool(value.toBool());
            return;
        case QMetaType::LongLong:
            writer_.Int64(value.toLongLong());
            return;
        case QMetaType::ULongLong:
            writer_.Uint64(value.toULongLong());
            return;
        case QMetaType::Double:
            return real(value.toDouble());
        case QMetaType::QVariantList:
            return array(value.toList());
        case QMetaType::QVariantMap:
            return dictionary(value.toMap());
        default:
            if (value.metaType() == QMetaType::fromType<ItemList>()) {
                return items(value.value<ItemList>());
            }
            writer_.Null();
    }
}

void StoreEncoder::dictionary(const QVariantMap& entries) {
    writer_.StartObject();
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        const QByteArray key = entry.key().toUtf8();
        writer_.Key(key.constData(), length(key.size()));
        value(entry.value());
    }
    writer_.EndObject();
}

void StoreEncoder::array(const QVariantList& values) {
    writer_.StartArray();
    for (const QVariant& element : values) {
        value(element);
    }
    writer_.EndArray();
}

void StoreEncoder::items(const ItemList& list) {
    writer_.StartArray();
    list.forEach([this](const ItemRecord& item) {
        if (!stream_.stopped()) {
            record(item);
        }
    });
    writer_.EndArray();
}

void StoreEncoder::record(const ItemRecord& record) {
    const std::optional<VisibleForm> form = record.ordinaryForm();
    if (!form) {
        return value(record.toVariant());
    }
    writer_.StartObject();
    name(ItemRecord::filePathKey);
    text(record.filePath());
    name(ItemRecord::fileTitleKey);
    text(record.fileTitleView());
    name(ItemRecord::visibleKey);
    if (*form == VisibleForm::NumberOne) {
        writer_.Int(1);
    } else {
        writer_.String(*form == VisibleForm::StringOne ? "1" : "0", 1);
    }
    writer_.EndObject();
}

void StoreEncoder::text(QStringView text) {
    const QByteArray bytes = text.toUtf8();
    writer_.String(bytes.constData(), length(bytes.size()));
}

void StoreEncoder::real(double value) {
    // JSON has no words for the others.
    if (std::isfinite(value)) {
        writer_.Double(value);
    } else {
        writer_.Null();
    }
}

}  // namespace

bool encodeStore(const StoreContents& contents, const ByteSink& sink) {
    return StoreEncoder(sink).encode(contents);
}
