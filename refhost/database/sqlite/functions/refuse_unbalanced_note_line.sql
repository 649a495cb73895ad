-- Refuses the first total of the row that came last which is further from quantity times unit price than it may be (ML052).

select refuse('ML052', total_text(CENA), (select i.NAZEV from SKLADPOL i where i.ID = p.SKLPID), number_text(MNOZSTVI),
              number_text(JEDNCENA))
from temp.NOTE_PAIR p
where not dec_products_agree(MNOZSTVI, TOLERANCE, JEDNCENA, CENA)
order by ORDINAL;
