-- What suppliers delivered; a return is no delivery.
create view DELIVERY_V as
select d.DODVID, d.DATUM, d.ID as DODKID, p.PORADI, p.SKLPID, p.SKLDID, p.MNOZSTVI
from DODAK d
join DODAKPOL p on p.DODKID = d.ID
where p.MNOZSTVI > 0;
