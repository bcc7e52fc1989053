select 1
  , 2 -- c;
  , ';'
/* d; */
