// SPDX-License-Identifier: MIT
// The work of the rows of posts. Each program says how it posts a task that holds a handle and calls run()
// with it.
#pragma once

#include <boost/shared_ptr.hpp>
#include <functional>

namespace bench {

using handle = boost::shared_ptr<int>;

// What every task does, on the loop.
void run(const handle& object);

// Arguments: "loop" and how many tasks, posted from tasks of the loop, a thousand in a go; "1", "4" and how
// many, posted by as many other threads; "busy" and how many, posted one by one by another thread as soon as
// the one before has run; "asleep" and how many, posted one by one when the loop has fallen asleep. Prints
// tasks_per_s, or p50_us and p99_us.
int posts_main(int count, char** arguments, const std::function<void(const handle&)>& post);

}  // namespace bench
