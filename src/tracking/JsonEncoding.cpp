#include "tracking/JsonForm.h"
#include "tracking/JsonWriting.h"

namespace vantle::json {

namespace {

using writing::appendDate;
using writing::appendKey;
using writing::appendString;
using writing::unwritableDate;

void appendId(QByteArray& out, const QUuid& id) {
    out += '"';
    out += id.toByteArray(QUuid::WithoutBraces).toUpper();
    out += '"';
}

} // namespace

Result<QByteArray> encode(const Session& session) {
    QByteArray out = "{";
    out.reserve(256);
    appendKey(out, "activeSeconds");
    out += QByteArray::number(static_cast<qlonglong>(session.activeSeconds));
    appendKey(out, "endedAt");
    bool datesFit = appendDate(out, session.endedAt);
    appendKey(out, "id");
    appendId(out, session.id);
    appendKey(out, "note");
    appendString(out, session.note);
    appendKey(out, "skillId");
    appendString(out, session.skillId);
    appendKey(out, "source");
    appendString(out, session.source.text());
    appendKey(out, "startedAt");
    datesFit = appendDate(out, session.startedAt) && datesFit;
    out += '}';
    if (!datesFit) return unwritableDate();
    return out;
}

Result<QByteArray> encode(const OpenSessionMarker& marker) {
    QByteArray out = "{";
    appendKey(out, "activeSeconds");
    out += QByteArray::number(static_cast<qlonglong>(marker.activeSeconds));
    appendKey(out, "id");
    appendId(out, marker.id);
    appendKey(out, "lastSeenAt");
    bool datesFit = appendDate(out, marker.lastSeenAt);
    appendKey(out, "skillId");
    appendString(out, marker.skillId);
    appendKey(out, "startedAt");
    datesFit = appendDate(out, marker.startedAt) && datesFit;
    out += '}';
    if (!datesFit) return unwritableDate();
    return out;
}

QByteArray encode(const std::vector<Skill>& skills) {
    QByteArray out = "[";
    for (const Skill& skill : skills) {
        if (out.size() > 1) out += ',';
        out += '{';
        appendKey(out, "builtin");
        out += skill.builtin ? "true" : "false";
        appendKey(out, "hexRGB");
        out += QByteArray::number(skill.hexRGB);
        appendKey(out, "id");
        appendString(out, skill.id);
        appendKey(out, "name");
        appendString(out, skill.name);
        out += '}';
    }
    out += ']';
    return out;
}

} // namespace vantle::json
