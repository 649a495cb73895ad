-- The price lists with the last day on which they count, so that a day is asked for with one "between".
create view PRICE_V as
select DODVID, SKLPID, PLATIOD as FIRSTDAY, coalesce(PLATIDO, 'infinity') as LASTDAY, CENA, SLEVA
from DODCENIK;
