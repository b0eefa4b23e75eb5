#pragma once

#include "model/code_set.h"

#include <QObject>

namespace Glyphor {

class Session;

// Changes the kerning pairs of a character, each time as one step.
class KerningCommands final : public QObject
{
    Q_OBJECT

public:
    // The session must outlive it.
    KerningCommands(Session& session, QObject* parent) : QObject(parent), session_(session) {}

    // A pair that is not there is added, in the order of the codes.
    void SetPair(quint16 code, quint16 next, int distance);
    void RemovePairs(quint16 code, const CodeSet& next);

private:
    Session& session_;
};

} // namespace Glyphor
