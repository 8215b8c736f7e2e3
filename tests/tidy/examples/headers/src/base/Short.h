// Clock.
#pragma once
