#pragma once

class QObject;

namespace zdt {

/// Lets nothing that the children of `owner` tell reach it any more. For destructors: children are deleted last, and a
/// field that loses the focus then would call into what is gone.
void hearNoChildren(QObject* owner);

} // namespace zdt
