#include "KyRefUcsCommand.h"

#include <cmath>

#include "KyRefCommandContext.h"
#include "KyRefHost.h"
#include "KyRefLanguage.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbUCSTableRecord.h"

namespace {

// A coordinate system: its origin and the directions of its X and Y axes, in
// world coordinates.
struct Frame {
    KyGePoint3d origin;
    KyGePoint3d xAxis{1.0, 0.0, 0.0};
    KyGePoint3d yAxis{0.0, 1.0, 0.0};
};

KyGePoint3d unit(const KyGePoint3d& v) {
    const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return length > 0.0 ? KyGePoint3d(v.x / length, v.y / length, v.z / length) : v;
}

KyGePoint3d cross(const KyGePoint3d& a, const KyGePoint3d& b) {
    return KyGePoint3d(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

// The direction `local` of `frame` in world coordinates.
KyGePoint3d toWorld(const Frame& frame, const KyGePoint3d& local) {
    const KyGePoint3d x = unit(frame.xAxis);
    const KyGePoint3d y = unit(frame.yAxis);
    const KyGePoint3d z = cross(x, y);
    return KyGePoint3d(local.x * x.x + local.y * y.x + local.z * z.x,
                       local.x * x.y + local.y * y.y + local.z * z.y,
                       local.x * x.z + local.y * y.z + local.z * z.z);
}

// An orthographic plane: its name, which UCSNAME holds, and its axes in the
// coordinates of the base UCS.
struct Plane {
    const wchar_t* name;
    KyGePoint3d xAxis;
    KyGePoint3d yAxis;
};

const Plane kPlanes[] = {
    {L"Top", {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}},   {L"Bottom", {1.0, 0.0, 0.0}, {0.0, -1.0, 0.0}},
    {L"Front", {1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}}, {L"Back", {-1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
    {L"Left", {0.0, -1.0, 0.0}, {0.0, 0.0, 1.0}}, {L"Right", {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}},
};

// The first prompt's options: the planes in the order of kPlanes, then the rest.
const KyRefKeyword kOptions[] = {
    {L"Top", L"Oben"},   {L"Bottom", L"Unten"}, {L"FRont", L"VOrne"}, {L"BAck", L"HInten"},
    {L"Left", L"Links"}, {L"RIght", L"REchts"}, {L"World", L"Welt"},  {L"NAmed", L"BEnannt"},
};
constexpr int kWorld = 6;
constexpr int kNamed = 7;

const KyRefKeyword kNamedOptions[] = {
    {L"Restore", L"Holen"},
    {L"Save", L"Sichern"},
    {L"Delete", L"Loeschen"},
    {L"?", L"?"},
};
constexpr int kRestore = 0;

const wchar_t* pick(const KyRefKeyword& keyword) {
    return KyRefLanguage::pick(keyword.global, keyword.local);
}

Frame frameOf(const KyRefReadAccess<KyDbUCSTableRecord>& record) {
    return Frame{record->origin(), record->xAxis(), record->yAxis()};
}

// The UCS of the drawing's table named by the user; the command ends when
// there is none.
void restoreNamed(KyRefCommandContext& context, KyString& name, Frame& frame) {
    const int option =
        context.readKeyword(KyString::formatted(L"Enter an option %ls: ",
                                                KyRefKeywords::options(kNamedOptions).kwszPtr()),
                            kNamedOptions, false);
    if (option != kRestore) {
        context.fail(L"This host does not support the option %ls.", pick(kNamedOptions[option]));
    }
    const KyString wanted = context.readName(L"Enter name of UCS to restore: ");
    const KyDbObjectId id = KyRefNamedItem::find(context.database()->UCSTableId(), wanted);
    KyRefReadAccess<KyDbUCSTableRecord> record(id);
    if (!record) {
        context.fail(L"Cannot find UCS \"%ls\".", wanted.kwszPtr());
    }
    name = record->name();
    frame = frameOf(record);
}

// The orthographic plane `plane` of the drawing's base UCS.
Frame planeFrame(KyRefCommandContext& context, const Plane& plane) {
    Frame base;
    if (const KyDbObjectId baseId = context.database()->ucsBase(); !baseId.isNull()) {
        KyRefReadAccess<KyDbUCSTableRecord> record(baseId);
        if (record) {
            base = frameOf(record);
        }
    }
    return Frame{base.origin, toWorld(base, plane.xAxis), toWorld(base, plane.yAxis)};
}

void setVariable(KyRefCommandContext& context, const wchar_t* name, const resbuf& value) {
    KyString error;
    if (context.host().sysVars().set(name, value, KyRefSysVarStore::kIgnoreReadOnly, &error) !=
        KyRefSysVarStatus::kOk) {
        context.fail(L"%ls", error.kwszPtr());
    }
}

}  // namespace

void KyRefUcsCommand::run(KyRefCommandContext& context) {
    KyRefResbufPtr current;
    context.host().sysVars().get(L"UCSNAME", current);
    const wchar_t* currentName = current != nullptr ? current->resval.rstring : L"";
    context.message(L"Current ucs name:  %ls", currentName[0] != L'\0' ? currentName : L"*WORLD*");

    const KyString prompt =
        KyString::formatted(L"Specify origin of UCS or %ls <%ls>: ",
                            KyRefKeywords::options(kOptions).kwszPtr(), pick(kOptions[kWorld]));
    const KyString answer = context.readWord(prompt);
    const int option = answer.isEmpty() ? kWorld : KyRefKeywords::match(kOptions, answer);
    if (option < 0) {
        context.fail(L"Invalid option keyword \"%ls\".", answer.kwszPtr());
    }
    KyString name;
    Frame frame;
    if (option == kNamed) {
        restoreNamed(context, name, frame);
    } else if (option != kWorld) {
        name = kPlanes[option].name;
        frame = planeFrame(context, kPlanes[option]);
    }
    setVariable(context, L"UCSNAME", *KyRefResbuf::makeString(name));
    setVariable(context, L"UCSORG", *KyRefResbuf::makePoint(frame.origin));
    setVariable(context, L"UCSXDIR", *KyRefResbuf::makePoint(unit(frame.xAxis)));
    setVariable(context, L"UCSYDIR", *KyRefResbuf::makePoint(unit(frame.yAxis)));
}
