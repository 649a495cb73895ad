-- Refuses a save whose source document does not exist any more (ML055); null, 0 and negative
-- identifiers are none.
--
-- in: note
-- in: order

select refuse('ML055', ID)
from (select :note as ID where :note > 0 and :note not in (select ID from DODAK)
      union all
      select :order where :order > 0 and :order not in (select ID from DODOBJEDNAVKA));
