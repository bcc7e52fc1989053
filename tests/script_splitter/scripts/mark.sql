-- begins with a byte order mark
select 1;
select '﻿';
