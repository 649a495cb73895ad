-- Refuses a row or a closing call of a save that was not begun by emptying the rows (ML040) or whose earlier call was
-- refused (ML041).

select case STATE
           when 'closed' then refuse('ML040')
           when 'refused' then refuse('ML041')
       end
from temp.STAGING;
