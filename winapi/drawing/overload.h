// One visitor of several kinds, made of a function for each.
#pragma once

namespace winapi {

template <class... Cases>
struct Overload : Cases...
{
    using Cases::operator()...;
};
template <class... Cases>
Overload(Cases...) -> Overload<Cases...>;

}
